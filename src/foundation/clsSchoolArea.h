#pragma once

#include <QString>

/// The unit's name, kept in the settings.
class clsSchoolArea {
 public:
  /// Loads the name.
  clsSchoolArea();

  bool LoadInfo();
  /// Stores the name; whether that succeeded.
  [[nodiscard]] bool SaveInfo() const;

  [[nodiscard]] const QString& SNAME() const { return m_name; }
  void setSNAME(const QString& name) { m_name = name; }

 private:
  QString m_name;
};
