#pragma once

#include <memory>

#include <QDate>
#include <QString>

#include "attendance/clsPresenceSet.h"
#include "attendance/clsSingleEmployeeMonPresence.h"
#include "runtime/KeyedCollection.h"

/// The employees of a date range with their days, in order of first appearance, each under its number.
class clsEmployeePresenceSet {
 public:
  /// Adds the records that signed in from `startDate` to the end of `endDate` to what is already here. The
  /// first record of an employee's day stands, further ones are dropped. False when the database failed;
  /// nothing was added then. More than 32,767 records are an Overflow that reaches the caller, and nothing
  /// was added: load shorter ranges one after the other.
  [[nodiscard]] bool LoadByDate(const QDate& startDate, const QDate& endDate);
  /// Adds records as LoadByDate does, however many there are.
  void AddRecords(const clsPresenceSet& records);
  /// Appends a new employee, under `sKey` when that is not empty, and returns it. A key that is already there
  /// is an error that reaches the caller.
  std::shared_ptr<clsSingleEmployeeMonPresence> Add(const QString& ENUMBER, const QString& ENAME,
                                                    const QString& sKey = {});
  [[nodiscard]] std::shared_ptr<clsSingleEmployeeMonPresence> Item(int position) const {
    return m_members.Item(position);
  }
  [[nodiscard]] std::shared_ptr<clsSingleEmployeeMonPresence> Item(const QString& key) const {
    return m_members.Item(key);
  }
  [[nodiscard]] int Count() const { return m_members.Count(); }
  void Remove(int position) { m_members.Remove(position); }
  void Remove(const QString& key) { m_members.Remove(key); }
  [[nodiscard]] auto begin() const { return m_members.begin(); }
  [[nodiscard]] auto end() const { return m_members.end(); }

  /// The error that ended the last LoadByDate; empty when none did.
  [[nodiscard]] const QString& lastFailure() const { return m_lastFailure; }

 private:
  runtime::KeyedCollection<clsSingleEmployeeMonPresence> m_members;
  QString m_lastFailure;
};
