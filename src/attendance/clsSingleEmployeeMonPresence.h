#pragma once

#include <QDateTime>
#include <QHash>
#include <QString>

/// One employee's arrivals and departures, by day.
class clsSingleEmployeeMonPresence {
 public:
  /// The departure on `specDay`; the zero date-time when there is none.
  [[nodiscard]] QDateTime GetExitTime(const QDate& specDay) const;
  /// The arrival on `specDay`; the zero date-time when there is none.
  [[nodiscard]] QDateTime GetEnterTime(const QDate& specDay) const;
  /// Files `enterTime` under its day, then `exitTime` under its own. A day that is taken is an error
  /// (DuplicateKey) that reaches the caller; when the first is, the second is not filed.
  void AddPresence(const QDateTime& enterTime, const QDateTime& exitTime);
  /// As AddPresence, but tells by its result whether both were filed, for callers to whom a taken day is
  /// nothing unusual.
  bool tryAddPresence(const QDateTime& enterTime, const QDateTime& exitTime);

  [[nodiscard]] const QString& ENAME() const { return m_ename; }
  void setENAME(const QString& name) { m_ename = name; }
  [[nodiscard]] const QString& ENUMBER() const { return m_enumber; }
  void setENUMBER(const QString& number) { m_enumber = number; }

 private:
  /// Moments by the Julian day number of their date; the zero date-time's day lies in no month of a report.
  using Days = QHash<qint64, QDateTime>;

  QString m_enumber;
  QString m_ename;
  Days m_enterTimes;
  Days m_exitTimes;
};
