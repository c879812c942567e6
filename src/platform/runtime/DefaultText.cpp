#include "runtime/DefaultText.h"

namespace runtime {

QDateTime zeroDateTime() {
  // Local time is asked of the system, which is too slow for thousands of records.
  static const QDateTime zero(QDate(1899, 12, 30), QTime(0, 0));
  return zero;
}

bool isZero(const QDateTime& moment) {
  return moment.date() == QDate(1899, 12, 30) && moment.time() == QTime(0, 0);
}

QString dateText(const QDate& date) {
  return date.toString(QStringLiteral("yyyy-MM-dd"));
}

QString dateTimeText(const QDateTime& moment) {
  const QTime time(moment.time().hour(), moment.time().minute(), moment.time().second());
  const QString date = dateText(moment.date());
  return time == QTime(0, 0) ? date : date + u' ' + time.toString(QStringLiteral("HH:mm:ss"));
}

QString shortTimeText(const QTime& time) {
  if (!time.isValid()) return {};
  // By hand, because the reports ask for tens of thousands of them.
  const auto digit = [](int value) { return QChar(u'0' + value); };
  const QChar text[] = {digit(time.hour() / 10), digit(time.hour() % 10), u':', digit(time.minute() / 10),
                        digit(time.minute() % 10)};
  return QString(text, std::size(text));
}

}  // namespace runtime
