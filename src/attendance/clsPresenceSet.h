#pragma once

#include <memory>

#include <QDate>
#include <QString>

#include "attendance/clsPresence.h"
#include "runtime/KeyedCollection.h"
#include "runtime/RuntimeError.h"

/// Sign-in records in order, each under an optional key.
class clsPresenceSet {
 public:
  /// Appends the records that signed in from `startDate` to the end of `endDate`, with the employees' names,
  /// in the order of the database; records of numbers that no employee has are left out. False when the
  /// database failed; what was appended before stays.
  [[nodiscard]] bool LoadSet(const QDate& startDate, const QDate& endDate);
  /// LoadSet for today. Fails within the second 00:00:00.
  [[nodiscard]] bool LoadToday();
  /// Appends a new record, under `sKey` when that is not empty, and returns it. A key that is already there
  /// is an error that reaches the caller.
  std::shared_ptr<clsPresence> Add(const QString& ENUMBER, const QDateTime& enterTime,
                                   const QDateTime& exitTime, const QString& ENAME, const QString& sKey = {});
  [[nodiscard]] std::shared_ptr<clsPresence> Item(int position) const { return m_members.Item(position); }
  [[nodiscard]] std::shared_ptr<clsPresence> Item(const QString& key) const { return m_members.Item(key); }
  [[nodiscard]] int Count() const { return m_members.Count(); }
  void Remove(int position) { m_members.Remove(position); }
  void Remove(const QString& key) { m_members.Remove(key); }
  [[nodiscard]] auto begin() const { return m_members.begin(); }
  [[nodiscard]] auto end() const { return m_members.end(); }

  /// The error that ended the last loading; empty when none did.
  [[nodiscard]] const QString& lastFailure() const { return m_lastFailure.words; }
  [[nodiscard]] runtime::FailureKind lastFailureKind() const { return m_lastFailure.kind; }

 private:
  runtime::KeyedCollection<clsPresence> m_members;
  runtime::Failure m_lastFailure;
};
