#include "ado/FieldTypes.h"

#include <limits>
#include <optional>

#include <QDateTime>

#include "ado/Translation.h"
#include "runtime/Conversions.h"
#include "runtime/DefaultText.h"

namespace ado {

namespace {

constexpr int usualTextSize = 255;
constexpr int longBinarySize = 1073741823;

bool mentionsAny(const QString& declared, std::initializer_list<QLatin1String> words) {
  return std::any_of(words.begin(), words.end(), [&declared](QLatin1String word) {
    return declared.contains(word, Qt::CaseInsensitive);
  });
}

/// DATETIME_TEXT holds both words: dates are told first.
DataType typeOf(const QString& declared) {
  if (mentionsAny(declared, {QLatin1String("DATE")})) return DataType::Date;
  if (mentionsAny(declared, {QLatin1String("INT")})) return DataType::Integer;
  if (mentionsAny(declared, {QLatin1String("BLOB"), QLatin1String("BINARY")})) return DataType::LongVarBinary;
  if (mentionsAny(declared, {QLatin1String("REAL"), QLatin1String("DOUB"), QLatin1String("FLOA")})) {
    return DataType::Double;
  }
  return DataType::VarWChar;
}

/// The number between the parentheses of TEXT(50).
std::optional<int> declaredSize(const QString& declared) {
  const qsizetype open = declared.indexOf(u'(');
  const qsizetype close = declared.indexOf(u')', open);
  if (open < 0 || close < 0) return std::nullopt;
  bool ok = false;
  const int size = declared.mid(open + 1, close - open - 1).trimmed().toInt(&ok);
  return ok ? std::optional<int>(size) : std::nullopt;
}

int sizeOf(DataType type, const QString& declared) {
  switch (type) {
    case DataType::Integer:
      return sizeof(qint32);
    case DataType::Double:
    case DataType::Date:
      return sizeof(double);
    case DataType::LongVarBinary:
      return longBinarySize;
    default:
      return declaredSize(declared).value_or(usualTextSize);
  }
}

int digits(QByteArrayView text, qsizetype at, qsizetype count) {
  int number = 0;
  for (const char c : text.sliced(at, count)) {
    if (c < '0' || c > '9') return -1;
    number = number * 10 + (c - '0');
  }
  return number;
}

/// The stored form, yyyy-mm-dd[ hh:mm:ss], without the cost of taking every form that people write: a month
/// of rows holds tens of thousands.
QDateTime storedMoment(QByteArrayView text) {
  constexpr qsizetype dateSize = 10;
  constexpr qsizetype momentSize = 19;
  if (text.size() != dateSize && text.size() != momentSize) return {};
  if (text.at(4) != '-' || text.at(7) != '-') return {};
  const QDate date(digits(text, 0, 4), digits(text, 5, 2), digits(text, 8, 2));
  if (text.size() == dateSize) return date.isValid() ? QDateTime(date, QTime(0, 0)) : QDateTime();
  const QTime time(digits(text, 11, 2), digits(text, 14, 2), digits(text, 17, 2));
  return date.isValid() && time.isValid() ? QDateTime(date, time) : QDateTime();
}

QVariant integerOf(qlonglong number) {
  if (number < std::numeric_limits<int>::min() || number > std::numeric_limits<int>::max()) return number;
  return static_cast<int>(number);
}

[[noreturn]] void mismatch(const FieldDefinition& definition) {
  throw AdoError(static_cast<int>(runtime::ErrorNumber::TypeMismatch),
                 QStringLiteral("字段“%1”的值类型不匹配").arg(definition.name));
}

QString fittingText(const QVariant& assigned, const FieldDefinition& definition) {
  QString text = runtime::toText(assigned);
  if (text.size() > definition.definedSize) {
    throw AdoError(
        static_cast<int>(runtime::ErrorNumber::Overflow),
        QStringLiteral("字段“%1”最多存放 %2 个字符").arg(definition.name).arg(definition.definedSize));
  }
  return text;
}

QDateTime moment(const QVariant& assigned, const FieldDefinition& definition) {
  if (assigned.typeId() == QMetaType::QDate) return {assigned.toDate(), QTime(0, 0)};
  QDateTime result = runtime::toDateTime(assigned);
  if (!result.isValid()) mismatch(definition);
  return result;
}

QByteArray bytes(const QVariant& assigned, const FieldDefinition& definition) {
  if (assigned.typeId() != QMetaType::QByteArray) mismatch(definition);
  return assigned.toByteArray();
}

double number(const QVariant& assigned, const FieldDefinition& definition) {
  bool ok = false;
  const double result = assigned.toDouble(&ok);
  if (!ok) mismatch(definition);
  return result;
}

}  // namespace

FieldDefinition definitionOf(const store::ColumnInfo& column) {
  FieldDefinition definition;
  definition.name = column.name;
  definition.type = typeOf(column.declaredType);
  definition.definedSize = sizeOf(definition.type, column.declaredType);
  definition.baseTable = column.baseTable;
  definition.baseColumn = column.baseColumn;
  definition.key = column.rowKey;
  definition.autoIncrement = column.autoIncrement;
  definition.nullable = !column.notNull && !column.rowKey;
  definition.mayDefer = definition.type == DataType::LongVarBinary;
  return definition;
}

DataType typeOfValue(const QVariant& stored) {
  switch (stored.typeId()) {
    case QMetaType::LongLong:
      return DataType::Integer;
    case QMetaType::Double:
      return DataType::Double;
    case QMetaType::QByteArray:
      return DataType::LongVarBinary;
    default:
      return DataType::VarWChar;
  }
}

QVariant fromStored(const QVariant& stored, const FieldDefinition& definition) {
  if (stored.typeId() == QMetaType::LongLong) return integerOf(stored.toLongLong());
  if (definition.type != DataType::Date || !stored.isValid()) return stored;
  return translatingErrors([&stored] { return runtime::toDateTime(stored); });
}

QVariant fromStoredText(QByteArrayView stored, const FieldDefinition& definition) {
  if (definition.type == DataType::Date) {
    const QDateTime moment = storedMoment(stored);
    if (moment.isValid()) return moment;
  }
  return fromStored(QString::fromUtf8(stored), definition);
}

QVariant converted(const QVariant& assigned, const FieldDefinition& definition) {
  if (!assigned.isValid()) return {};
  return translatingErrors([&]() -> QVariant {
    switch (definition.type) {
      case DataType::Integer:
        return runtime::toInt32(assigned);
      case DataType::Double:
        return number(assigned, definition);
      case DataType::Date:
        return moment(assigned, definition);
      case DataType::LongVarBinary:
        return bytes(assigned, definition);
      default:
        return fittingText(assigned, definition);
    }
  });
}

QVariant toStored(const QVariant& value) {
  return value.typeId() == QMetaType::QDateTime ? runtime::dateTimeText(value.toDateTime()) : value;
}

}  // namespace ado
