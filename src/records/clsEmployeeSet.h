#pragma once

#include <memory>

#include <QString>

#include "records/clsEmployee.h"
#include "runtime/KeyedCollection.h"

/// Employees in order, each under its number as key.
class clsEmployeeSet {
 public:
  /// Appends all employees that have a department and writes their photo files. Reports progress a row. An
  /// error reaches the caller; its description names the employee. Always returns true.
  bool LoadSet();
  /// Appends `employee` and returns it. A number that is already there is an error that reaches the caller.
  std::shared_ptr<clsEmployee> Add(const std::shared_ptr<clsEmployee>& employee);
  [[nodiscard]] std::shared_ptr<clsEmployee> Item(int position) const { return m_members.Item(position); }
  [[nodiscard]] std::shared_ptr<clsEmployee> Item(const QString& key) const { return m_members.Item(key); }
  [[nodiscard]] int Count() const { return m_members.Count(); }
  void Remove(int position) { m_members.Remove(position); }
  void Remove(const QString& key) { m_members.Remove(key); }
  [[nodiscard]] auto begin() const { return m_members.begin(); }
  [[nodiscard]] auto end() const { return m_members.end(); }

 private:
  runtime::KeyedCollection<clsEmployee> m_members;
};
