#pragma once

#include <QString>
#include <QStringList>

namespace cli {

/// A home in the making: the program directory with its settings file and an empty database. Until keep() is
/// called, the destructor takes back all that was made, and nothing that was there before.
class NewHome {
 public:
  /// `directory` is absolute; it must be the program directory (runtime::AppPath) by the time of make().
  explicit NewHome(const QString& directory);
  ~NewHome();
  NewHome(const NewHome&) = delete;
  NewHome& operator=(const NewHome&) = delete;

  /// Makes the directory where it is missing, attendance.ini and vorlent.dat; neither file may be there yet.
  /// Afterwards the shared connection stands open on the new database. Throws runtime::RuntimeError.
  void make();
  /// Puts the programs' help in, and leaves alone what bears its names already. Gives one line that tells
  /// what of it could not be found, which is no error; empty when all is there. Throws runtime::RuntimeError.
  [[nodiscard]] QString putHelp();
  void keep() { m_kept = true; }

 private:
  void refuseReadOnly() const;
  void makeDirectory(const QString& directory);
  void makeSettings();
  void makeDatabase();

  QString m_directory;
  QStringList m_madeFiles;
  /// Innermost first.
  QStringList m_madeDirectories;
  bool m_kept = false;
};

/// Why the settings and the connection string could not name `directory`; empty when they can.
[[nodiscard]] QString homePathFault(const QString& directory);

}  // namespace cli
