#pragma once

#include <optional>
#include <vector>

#include <QDate>
#include <QString>

/// A calendar month of the years 1000 to 9999.
class AttendanceMonth {
 public:
  /// The years of the months that users may ask for. The database is asked for what came before the day after
  /// a month, and after 9999-12-31 there is none.
  static constexpr int firstYear = 1900;
  static constexpr int lastYear = 9998;

  /// Nothing for a month that does not exist or a year without four digits.
  [[nodiscard]] static std::optional<AttendanceMonth> make(int year, int month);
  /// Reads `2026-11`; nothing for any other text and for years that nobody may ask for.
  [[nodiscard]] static std::optional<AttendanceMonth> parse(const QString& text);
  /// The month that is most likely wanted on `today`: the month before until the 5th, else this one.
  [[nodiscard]] static AttendanceMonth proposedOn(const QDate& today);

  [[nodiscard]] int year() const { return m_first.year(); }
  [[nodiscard]] int month() const { return m_first.month(); }
  [[nodiscard]] QDate firstDay() const { return m_first; }
  [[nodiscard]] QDate lastDay() const { return m_first.addDays(m_first.daysInMonth() - 1); }
  /// All days in order.
  [[nodiscard]] std::vector<QDate> days() const;
  /// `2026年11月`.
  [[nodiscard]] QString text() const;
  /// What documents of this month are called: unit, month, 员工考勤报表.
  [[nodiscard]] QString title(const QString& unit) const;

 private:
  explicit AttendanceMonth(const QDate& first) : m_first(first) {}

  QDate m_first;
};

/// 一 to 日.
[[nodiscard]] QString weekdayText(const QDate& day);
