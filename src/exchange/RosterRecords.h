#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <vector>

#include <QDateTime>
#include <QString>

#include "ado/TextOrder.h"

/// The departments and employees of the database at one moment, without photos, found as the database itself
/// would find them.
class RosterRecords {
 public:
  struct Employee {
    QString number{};
    QString name{};
    QString barcode{};
    /// Nothing when it is Null.
    std::optional<QDateTime> entered{};
  };

  /// Reads them. Throws runtime::RuntimeError.
  RosterRecords();

  /// Number of the department with that name, as it is stored: it may be too large for an employee's.
  [[nodiscard]] std::optional<qint64> department(const QString& name) const;
  /// The employees with that number: more than one only in a damaged database.
  [[nodiscard]] const std::vector<Employee>& employees(const QString& number) const;
  /// Number of an employee other than `number` who holds the barcode; nothing when there is none.
  [[nodiscard]] std::optional<QString> otherHolder(const QString& barcode, const QString& number) const;

 private:
  void readDepartments();
  void readEmployees();

  std::map<QString, qint64, ado::TextOrder> m_departments;
  std::map<QString, std::vector<Employee>, ado::TextOrder> m_employees;
  std::map<QString, std::vector<QString>, ado::TextOrder> m_holders;
};
