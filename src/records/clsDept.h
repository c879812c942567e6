#pragma once

#include <cstdint>

#include <QString>

#include "runtime/RuntimeError.h"

/// One department: a row of table Dept. Assigning the number or the name loads the row by it.
class clsDept {
 public:
  [[nodiscard]] std::int16_t ID() const { return m_id; }
  /// Stores the number and loads the department by it.
  void setID(std::int16_t id);
  [[nodiscard]] const QString& DNAME() const { return m_name; }
  /// Stores the name and loads the department by it; a name that is not stored leaves the number as it was.
  void setDNAME(const QString& name);
  [[nodiscard]] const QString& PASSWORD() const { return m_password; }
  void setPASSWORD(const QString& password) { m_password = password; }
  /// How many employees the department has; -1 when they could not be counted.
  [[nodiscard]] std::int16_t EMPLOYEENUM() const { return m_employeeCount; }

  /// True also when no row was found; false for number 0 and on failure.
  [[nodiscard]] bool LoadByID();
  /// True also when no row was found; false for an empty name and on failure.
  [[nodiscard]] bool LoadByName();
  /// Deletes the department with the decimal number `id`; whether a row was deleted. The caller has made sure
  /// that it has no employees.
  [[nodiscard]] bool Remove(const QString& id);
  [[nodiscard]] bool RemoveMe();
  /// Inserts a department that is not stored yet; its number is not read back.
  [[nodiscard]] bool AppendToDb();
  /// Stores the name of a stored department.
  [[nodiscard]] bool UpdateToDb();

  /// The error that ended the last of the operations above or the count of employees in it; empty when none
  /// did.
  [[nodiscard]] const QString& lastFailure() const { return m_lastFailure.words; }
  [[nodiscard]] runtime::FailureKind lastFailureKind() const { return m_lastFailure.kind; }

 private:
  void CountEmployees();

  std::int16_t m_id = 0;
  QString m_name;
  QString m_password;
  std::int16_t m_employeeCount = 0;
  runtime::Failure m_lastFailure;
};
