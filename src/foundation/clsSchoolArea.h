#pragma once

#include <QString>

/// The unit's name, kept in the settings.
class clsSchoolArea {
 public:
  /// Loads the name.
  clsSchoolArea();

  /// Reads the name, empty when it is not set. Always true.
  bool LoadInfo();
  /// Stores the name; whether that succeeded.
  [[nodiscard]] bool SaveInfo() const;

  [[nodiscard]] const QString& SNAME() const { return m_name; }
  void setSNAME(const QString& name) { m_name = name; }

 private:
  QString m_name;
};
