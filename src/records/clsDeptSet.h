#pragma once

#include <cstdint>
#include <memory>

#include <QString>

#include "records/clsDept.h"
#include "runtime/KeyedCollection.h"

namespace ado {
class Recordset;
}

/// All departments at the moment the set was made, each under its decimal number as key.
class clsDeptSet {
 public:
  /// Loads all departments; a step that fails is skipped.
  clsDeptSet();

  /// Appends a department with these values, assigned in this order (which loads it), under `key` unless that
  /// is empty, and returns it. A key that is taken is an error that reaches the caller.
  std::shared_ptr<clsDept> Add(std::int16_t id, const QString& name, const QString& password,
                               const QString& key);
  [[nodiscard]] std::shared_ptr<clsDept> Item(int position) const { return m_members.Item(position); }
  [[nodiscard]] std::shared_ptr<clsDept> Item(const QString& key) const { return m_members.Item(key); }
  [[nodiscard]] int Count() const { return m_members.Count(); }
  void Remove(int position) { m_members.Remove(position); }
  void Remove(const QString& key) { m_members.Remove(key); }
  [[nodiscard]] auto begin() const { return m_members.begin(); }
  [[nodiscard]] auto end() const { return m_members.end(); }

  /// The first error met while loading; empty when there was none.
  [[nodiscard]] const QString& firstFailure() const { return m_firstFailure; }

 private:
  void addRow(ado::Recordset& row);
  void noteFailure(const QString& failure);

  QString m_firstFailure;
  runtime::KeyedCollection<clsDept> m_members;
};
