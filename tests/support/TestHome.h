#pragma once

#include <memory>

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

#include "ado/Connection.h"

namespace support {

/// A clean program: a temporary program directory with attendance.ini and an empty vorlent.dat, no open
/// connection. All of it is undone when the object goes.
class TestHome {
 public:
  TestHome();
  ~TestHome();
  TestHome(const TestHome&) = delete;
  TestHome& operator=(const TestHome&) = delete;

  /// The program directory.
  [[nodiscard]] QString path() const { return m_directory.path(); }
  /// Path of a file in the program directory.
  [[nodiscard]] QString file(const QString& name) const { return m_directory.filePath(name); }
  [[nodiscard]] QString databaseFile() const { return file(QStringLiteral("vorlent.dat")); }

  /// A connection of the test's own.
  [[nodiscard]] std::shared_ptr<ado::Connection> connect() const;
  /// Runs one statement on a connection of its own and gives the affected records.
  int execute(const QString& sql) const;
  /// First column of the first row as text, "<null>" for Null and "<none>" without a row.
  [[nodiscard]] QString single(const QString& sql) const;
  /// Inserts an employee with the photo bytes as given; no photo at all (Null) when `photo` is null. Without
  /// a connection it opens one, which takes longer than the rest of a test.
  void insertEmployee(const QString& number, const QString& name, int department, const QByteArray& photo,
                      const QString& barcode = {},
                      const std::shared_ptr<ado::Connection>& connection = {}) const;
  /// Bytes of the smallest JPEG that a picture loader takes.
  [[nodiscard]] static QByteArray tinyJpeg();

 private:
  QTemporaryDir m_directory;
};

}  // namespace support
