#pragma once

#include <QString>

/// One group of an INI file. Nothing is cached: every call reads or writes the file, which is in the code
/// page of runtime/CodePage.h.
class clsConfiguration {
 public:
  [[nodiscard]] const QString& FileName() const { return m_fileName; }
  void setFileName(const QString& fileName) { m_fileName = fileName; }
  [[nodiscard]] const QString& Group() const { return m_group; }
  void setGroup(const QString& group) { m_group = group; }

  /// The value, cut to 254 bytes; empty when file, group or key are missing.
  [[nodiscard]] QString GetItem(const QString& key) const;
  /// Writes the value and returns whether that succeeded. A text that the code page cannot hold fails.
  [[nodiscard]] bool SetItem(const QString& key, const QString& value) const;

 private:
  QString m_fileName;
  QString m_group;
};

/// Full path of the program's settings file, attendance.ini in the program directory.
[[nodiscard]] QString settingsFile();
