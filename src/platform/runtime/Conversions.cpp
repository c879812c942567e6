#include "runtime/Conversions.h"

#include <cmath>
#include <limits>

#include <QRegularExpression>

#include "runtime/DefaultText.h"
#include "runtime/RuntimeError.h"

namespace runtime {

namespace {

[[noreturn]] void mismatch(const QString& text) {
  throw RuntimeError(ErrorNumber::TypeMismatch, QStringLiteral("类型不匹配：“%1”").arg(text));
}

void requireValue(const QVariant& value) {
  if (isNull(value)) throw RuntimeError(ErrorNumber::InvalidUseOfNull, QStringLiteral("无效使用 Null"));
}

double toNumber(const QVariant& value) {
  requireValue(value);
  if (value.typeId() != QMetaType::QString) {
    bool ok = false;
    const double number = value.toDouble(&ok);
    if (!ok) mismatch(QString::fromLatin1(value.typeName()));
    return number;
  }
  const QString text = value.toString();
  if (!isNumeric(text)) mismatch(text);
  return text.trimmed().toDouble();
}

double halfToEven(double number) {
  const double below = std::floor(number);
  const double rest = number - below;
  if (rest < 0.5) return below;
  if (rest > 0.5) return below + 1;
  return std::fmod(below, 2.0) == 0.0 ? below : below + 1;
}

template <typename Integer>
Integer toInteger(const QVariant& value) {
  const double number = halfToEven(toNumber(value));
  if (number < std::numeric_limits<Integer>::min() || number > std::numeric_limits<Integer>::max()) {
    throw RuntimeError(ErrorNumber::Overflow,
                       QStringLiteral("溢出：%1 不在 %2 到 %3 之间")
                           .arg(value.toString(), QString::number(std::numeric_limits<Integer>::min()),
                                QString::number(std::numeric_limits<Integer>::max())));
  }
  return static_cast<Integer>(number);
}

}  // namespace

QString toText(const QVariant& value) {
  if (value.typeId() == QMetaType::QString) return value.toString();
  requireValue(value);
  if (value.typeId() == QMetaType::QDateTime) return dateTimeText(value.toDateTime());
  if (!value.canConvert<QString>() || value.typeId() == QMetaType::QByteArray) {
    mismatch(QString::fromLatin1(value.typeName()));
  }
  return value.toString();
}

QString toTextOrEmpty(const QVariant& value) {
  return isNull(value) ? QString() : toText(value);
}

std::int16_t toInt16(const QVariant& value) {
  return toInteger<std::int16_t>(value);
}

std::int32_t toInt32(const QVariant& value) {
  return toInteger<std::int32_t>(value);
}

QDateTime toDateTime(const QVariant& value) {
  requireValue(value);
  if (value.typeId() == QMetaType::QDateTime) return value.toDateTime();
  const std::optional<QDateTime> moment = parseDateTime(value.toString());
  if (!moment) mismatch(value.toString());
  return *moment;
}

bool isNumeric(const QString& text) {
  static const QRegularExpression number(
      QStringLiteral("^\\s*[+-]?([0-9]+\\.?[0-9]*|\\.[0-9]+)([eE][+-]?[0-9]{1,3})?\\s*$"));
  return number.match(text).hasMatch();
}

std::optional<QDateTime> parseDateTime(const QString& text) {
  static const QRegularExpression form(QStringLiteral(
      "^\\s*(\\d{4})(?:-(\\d{1,2})-(\\d{1,2})|/(\\d{1,2})/(\\d{1,2})|年(\\d{1,2})月(\\d{1,2})日)"
      "(?:\\s+(\\d{1,2}):(\\d{2})(?::(\\d{2}))?)?\\s*$"));
  const QRegularExpressionMatch match = form.match(text);
  if (!match.hasMatch()) return std::nullopt;
  const auto either = [&match](int a, int b, int c) {
    const QString& first = match.captured(a);
    const QString& second = match.captured(b);
    return (!first.isEmpty() ? first : !second.isEmpty() ? second : match.captured(c)).toInt();
  };
  const QDate date(match.captured(1).toInt(), either(2, 4, 6), either(3, 5, 7));
  const QTime time(match.captured(8).toInt(), match.captured(9).toInt(), match.captured(10).toInt());
  if (!date.isValid() || !time.isValid()) return std::nullopt;
  return QDateTime(date, time);
}

}  // namespace runtime
