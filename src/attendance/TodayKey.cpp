#include "attendance/TodayKey.h"

#include <algorithm>

#include "runtime/DefaultText.h"

QString todayKey(const QDateTime& now) {
  const QString text = runtime::dateTimeText(now);
  return text.left(std::max(text.indexOf(u' '), qsizetype{0})).trimmed();
}
