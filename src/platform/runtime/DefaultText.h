#pragma once

#include <QDateTime>
#include <QString>

/// The one place that renders dates and times as text, independent of the desktop's locale.
namespace runtime {

/// The moment that stands for "none": 1899-12-30 00:00:00 local time.
[[nodiscard]] QDateTime zeroDateTime();
[[nodiscard]] bool isZero(const QDateTime& moment);

/// `2026-11-15`.
[[nodiscard]] QString dateText(const QDate& date);
/// `2026-11-15 08:05:09`; a moment at exactly midnight gives the date alone.
[[nodiscard]] QString dateTimeText(const QDateTime& moment);
/// `08:05`.
[[nodiscard]] QString shortTimeText(const QTime& time);

}  // namespace runtime
