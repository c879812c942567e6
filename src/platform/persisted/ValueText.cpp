#include "persisted/ValueText.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include <QDateTime>

#include "persisted/HexText.h"

namespace persisted {

namespace {

struct TypeName {
  QByteArrayView name;
  DataType type;
};

constexpr std::array typeNames = {
    TypeName{"i1", DataType::Integer},     TypeName{"i2", DataType::Integer},
    TypeName{"i4", DataType::Integer},     TypeName{"i8", DataType::Integer},
    TypeName{"int", DataType::Integer},    TypeName{"ui1", DataType::Integer},
    TypeName{"ui2", DataType::Integer},    TypeName{"ui4", DataType::Integer},
    TypeName{"r4", DataType::Double},      TypeName{"r8", DataType::Double},
    TypeName{"float", DataType::Double},   TypeName{"boolean", DataType::Boolean},
    TypeName{"number", DataType::Decimal}, TypeName{"ui8", DataType::Decimal},
    TypeName{"date", DataType::Date},      TypeName{"time", DataType::Date},
    TypeName{"dateTime", DataType::Date},  TypeName{"bin.hex", DataType::LongVarBinary},
};

constexpr int longText = 536870910;

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

/// A decimal number with an optional sign and point.
bool isDecimal(QByteArrayView text) {
  if (text.startsWith('-') || text.startsWith('+')) text = text.sliced(1);
  const qsizetype digits = std::count_if(text.begin(), text.end(), isDigit);
  const qsizetype points = std::count(text.begin(), text.end(), '.');
  return digits > 0 && points <= 1 && digits + points == text.size();
}

std::optional<QVariant> integer(QByteArrayView text) {
  bool ok = false;
  const qlonglong number = text.toLongLong(&ok);
  if (!ok) return std::nullopt;
  const bool isSmall = number >= std::numeric_limits<int>::min() && number <= std::numeric_limits<int>::max();
  return isSmall ? QVariant(static_cast<int>(number)) : QVariant(number);
}

std::optional<QVariant> floating(QByteArrayView text) {
  bool ok = false;
  const double number = text.toDouble(&ok);
  if (!ok || !std::isfinite(number)) return std::nullopt;
  return number;
}

std::optional<QVariant> boolean(QByteArrayView text) {
  const QByteArray value = text.toByteArray().toLower();
  if (value == "true" || value == "1" || value == "-1") return -1;
  if (value == "false" || value == "0") return 0;
  return std::nullopt;
}

/// The number that stands at `at`, or -1.
int digits(QByteArrayView text, qsizetype at, qsizetype count) {
  int number = 0;
  for (const char c : text.sliced(at, count)) {
    if (!isDigit(c)) return -1;
    number = number * 10 + (c - '0');
  }
  return number;
}

/// yyyy-mm-dd
QDate day(QByteArrayView text) {
  if (text.size() != 10 || text[4] != '-' || text[7] != '-') return {};
  return {digits(text, 0, 4), digits(text, 5, 2), digits(text, 8, 2)};
}

/// hh:mm:ss with decimals of the second, which are left out.
QTime timeOfDay(QByteArrayView text) {
  constexpr qsizetype size = 8;
  if (text.size() < size || text[2] != ':' || text[5] != ':') return {};
  const QByteArrayView rest = text.sliced(size);
  const bool isFraction = rest.isEmpty() || (rest.size() > 1 && rest.front() == '.' &&
                                             std::all_of(rest.begin() + 1, rest.end(), isDigit));
  if (!isFraction) return {};
  return {digits(text, 0, 2), digits(text, 3, 2), digits(text, 6, 2)};
}

std::optional<QVariant> moment(QByteArrayView text) {
  // The day that stands for none before a bare time.
  QDate date(1899, 12, 30);
  QTime clock(0, 0);
  const qsizetype mark = text.indexOf('T');
  const bool isTime = text.contains(':');
  if (mark >= 0 || !isTime) date = day(mark >= 0 ? text.first(mark) : text);
  if (mark >= 0 || isTime) clock = timeOfDay(text.sliced(mark + 1));
  if (!date.isValid() || !clock.isValid()) return std::nullopt;
  return QDateTime(date, clock);
}

}  // namespace

void setType(FieldDefinition& column, QByteArrayView type, QByteArrayView dbtype, QByteArrayView maxLength) {
  const auto found = std::find_if(typeNames.begin(), typeNames.end(),
                                  [type](const TypeName& known) { return known.name == type; });
  const bool isText = found == typeNames.end();
  column.type = isText ? DataType::VarWChar : found->type;
  if (dbtype == "currency" || dbtype == "decimal" || dbtype == "numeric") column.type = DataType::Decimal;
  column.mayDefer = column.type == DataType::LongVarBinary;
  bool ok = false;
  const qlonglong size = maxLength.toLongLong(&ok);
  column.definedSize = ok ? static_cast<int>(std::clamp<qlonglong>(size, 0, std::numeric_limits<int>::max()))
                          : (isText ? longText : 0);
}

std::optional<QVariant> valueOf(QByteArrayView text, DataType type) {
  switch (type) {
    case DataType::Integer:
      return integer(text);
    case DataType::Double:
      return floating(text);
    case DataType::Boolean:
      return boolean(text);
    case DataType::Decimal:
      return isDecimal(text) ? std::optional<QVariant>(QString::fromLatin1(text)) : std::nullopt;
    case DataType::Date:
      return moment(text);
    case DataType::LongVarBinary:
      if (std::optional<QByteArray> bytes = bytesOfHex(text)) return *bytes;
      return std::nullopt;
    default:
      return QString::fromUtf8(text);
  }
}

}  // namespace persisted
