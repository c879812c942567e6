#pragma once

#include <optional>

#include <QDateTime>
#include <QString>

/// How many have signed in today, and when somebody signed in last, as the database has it and as the
/// station's own sign-ins add to it.
class SignInFigures {
 public:
  /// Reads both from the database; when that fails, says why in lastFailure() and nothing changes. Not to be
  /// called within the second 00:00:00.
  [[nodiscard]] bool load();
  /// Counts on for somebody who signed in at `moment`.
  void add(const QDateTime& moment);

  /// Whether they were read, and for the day of `now`.
  [[nodiscard]] bool areOf(const QDateTime& now) const { return m_count && m_day == now.date(); }
  /// Nothing until they were read.
  [[nodiscard]] std::optional<int> count() const { return m_count; }
  /// Whether `now` stands before the latest sign-in.
  [[nodiscard]] bool isBefore(const QDateTime& now) const { return m_latest && now < *m_latest; }
  [[nodiscard]] const QString& lastFailure() const { return m_lastFailure; }

 private:
  std::optional<int> m_count;
  QDate m_day;
  std::optional<QDateTime> m_latest;
  QString m_lastFailure;
};
