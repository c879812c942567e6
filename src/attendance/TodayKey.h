#pragma once

#include <QDateTime>
#include <QString>

/// The part before the first blank of the default text of `now`, such as `2026-11-15`: what the texts of the
/// day's moments begin with. Empty at exactly midnight, where the text has no blank.
[[nodiscard]] QString todayKey(const QDateTime& now);
