#include "cli/RecordsetText.h"

#include <array>

#include <QCryptographicHash>
#include <QJsonDocument>
#include <QJsonObject>

#include "cli/Cell.h"
#include "runtime/Conversions.h"
#include "runtime/DefaultText.h"

namespace cli {

namespace {

using persisted::DataType;

struct TypeWords {
  DataType type;
  QStringView table;
  QLatin1String json;
};

constexpr std::array typeWords = {
    TypeWords{DataType::Integer, u"整数", QLatin1String("integer")},
    TypeWords{DataType::Double, u"浮点数", QLatin1String("double")},
    TypeWords{DataType::Date, u"日期时间", QLatin1String("dateTime")},
    TypeWords{DataType::Boolean, u"是/否", QLatin1String("boolean")},
    TypeWords{DataType::Decimal, u"十进制数", QLatin1String("decimal")},
    TypeWords{DataType::VarWChar, u"文本", QLatin1String("text")},
    TypeWords{DataType::LongVarBinary, u"二进制", QLatin1String("binary")},
};

const TypeWords& wordsOf(DataType type) {
  return *std::find_if(typeWords.begin(), typeWords.end(),
                       [type](const TypeWords& words) { return words.type == type; });
}

QString hashOf(const QByteArray& bytes) {
  return QString::fromLatin1(QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex());
}

QString tableCell(const QVariant& value, DataType type) {
  if (!value.isValid()) return QStringLiteral("<Null>");
  if (type == DataType::Boolean) return value.toInt() != 0 ? QStringLiteral("是") : QStringLiteral("否");
  if (type != DataType::LongVarBinary) return cell(runtime::toText(value));
  const QByteArray bytes = value.toByteArray();
  return QStringLiteral("%1 字节 SHA-256 %2").arg(bytes.size()).arg(hashOf(bytes));
}

/// Decimals stay the text that they are: a JSON reader would take them for binary fractions.
QJsonValue jsonValue(const QVariant& value, DataType type) {
  if (!value.isValid()) return QJsonValue::Null;
  switch (type) {
    case DataType::Boolean:
      return value.toInt() != 0;
    case DataType::Date:
      return runtime::dateTimeText(value.toDateTime());
    case DataType::LongVarBinary: {
      const QByteArray bytes = value.toByteArray();
      return QJsonObject{{QStringLiteral("bytes"), bytes.size()}, {QStringLiteral("sha256"), hashOf(bytes)}};
    }
    default:
      return QJsonValue::fromVariant(value);
  }
}

QString compact(const QJsonObject& object) {
  return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

QStringList uniqueNames(const std::vector<persisted::FieldDefinition>& columns) {
  QStringList names;
  for (const persisted::FieldDefinition& column : columns) {
    QString name = column.name;
    for (int number = 2; names.contains(name); ++number) name = column.name + QString::number(number);
    names.append(name);
  }
  return names;
}

/// Writes objects as the elements of an array, one a line.
class JsonArray {
 public:
  explicit JsonArray(QTextStream& out) : m_out(out) { m_out << '['; }
  void append(const QJsonObject& object) {
    m_out << (m_isEmpty ? "\n" : ",\n") << compact(object);
    m_isEmpty = false;
  }
  void finish() { m_out << "\n]"; }

 private:
  QTextStream& m_out;
  bool m_isEmpty = true;
};

}  // namespace

void writeTable(persisted::Reader& reader, QTextStream& out) {
  const std::vector<persisted::FieldDefinition>& columns = reader.columns();
  QStringList headings;
  out << QStringLiteral("列\t类型\t大小\n");
  for (const persisted::FieldDefinition& column : columns) {
    headings.append(cell(column.name));
    out << headings.last() << '\t' << wordsOf(column.type).table << '\t' << column.definedSize << '\n';
  }
  out << '\n' << headings.join(u'\t') << '\n';
  std::vector<QVariant> row;
  while (reader.next(row)) {
    QStringList cells;
    for (std::size_t i = 0; i < row.size(); ++i) cells.append(tableCell(row[i], columns[i].type));
    out << cells.join(u'\t') << '\n';
  }
}

void writeJson(persisted::Reader& reader, QTextStream& out) {
  const std::vector<persisted::FieldDefinition>& columns = reader.columns();
  const QStringList names = uniqueNames(columns);
  out << "{\"columns\":";
  JsonArray described(out);
  for (std::size_t i = 0; i < columns.size(); ++i) {
    described.append({{QStringLiteral("name"), names[static_cast<qsizetype>(i)]},
                      {QStringLiteral("type"), wordsOf(columns[i].type).json},
                      {QStringLiteral("size"), columns[i].definedSize}});
  }
  described.finish();
  out << ",\"rows\":";
  JsonArray rows(out);
  std::vector<QVariant> row;
  while (reader.next(row)) {
    QJsonObject object;
    for (std::size_t i = 0; i < row.size(); ++i) {
      object.insert(names[static_cast<qsizetype>(i)], jsonValue(row[i], columns[i].type));
    }
    rows.append(object);
  }
  rows.finish();
  out << "}\n";
}

}  // namespace cli
