#pragma once

#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

/// A print service of its own, with its files in a temporary folder and its queues printing into files there;
/// gone with the object. The one of the machine is not touched.
class CupsServer {
 public:
  /// Starts it and waits until it answers; the test fails when it does not.
  CupsServer();
  ~CupsServer();
  CupsServer(const CupsServer&) = delete;
  CupsServer& operator=(const CupsServer&) = delete;

  /// Whether cupsd and its tools are there.
  [[nodiscard]] static bool isInstalled();

  [[nodiscard]] QString socket() const { return m_directory.filePath(QStringLiteral("cups.sock")); }
  /// Adds a printer in colour that prints on both sides, with these papers of "A4", "A5" and "Letter", the
  /// first being its default.
  void addQueue(const QString& name, const QStringList& papers);
  /// Runs a tool of the service: "cupsreject", "cupsdisable", "lpadmin" and the like.
  void run(const QString& tool, const QStringList& arguments);
  /// Ends it as a crash would.
  void kill();

  /// The file that the queue prints into; there is none before its first page.
  [[nodiscard]] QString printed(const QString& queue) const;
  /// Whether the queue has printed all it was given, within ten seconds.
  [[nodiscard]] bool isDone(const QString& queue);

 private:
  void configure() const;
  [[nodiscard]] QByteArray output(const QString& tool, const QStringList& arguments) const;

  QTemporaryDir m_directory;
  QProcess m_service;
};
