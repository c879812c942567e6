#include "persisted/Writer.h"

#include <algorithm>
#include <set>
#include <utility>

#include <QDateTime>

#include "persisted/Format.h"
#include "persisted/Refusal.h"

namespace persisted {

namespace {

constexpr char lineEnd[] = "\r\n";
constexpr qsizetype flushedAt = 1 << 16;

bool isPlainName(const QString& name) {
  const auto isLetter = [](QChar c) {
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || c == u'_';
  };
  const auto isPlain = [isLetter](QChar c) { return isLetter(c) || (c >= u'0' && c <= u'9'); };
  return !name.isEmpty() && isLetter(name.front()) && std::all_of(name.begin(), name.end(), isPlain);
}

/// What cannot stand in XML in any form.
bool isForbidden(char16_t c) {
  return (c < u' ' && c != u'\t' && c != u'\r' && c != u'\n') || c == 0xFFFE || c == 0xFFFF;
}

const char* escapeOf(char16_t c) {
  switch (c) {
    case u'&':
      return "&#x26;";
    case u'<':
      return "&#x3c;";
    case u'>':
      return "&#x3e;";
    case u'"':
      return "&#x22;";
    case u'\'':
      return "&#x27;";
    case u'\t':
      return "&#x9;";
    case u'\r':
      return "&#xd;";
    case u'\n':
      return "&#xa;";
    default:
      return nullptr;
  }
}

QByteArray escaped(const QString& text) {
  const auto first =
      std::find_if(text.begin(), text.end(), [](QChar c) { return escapeOf(c.unicode()) != nullptr; });
  if (first == text.end()) return text.toUtf8();
  QByteArray bytes;
  qsizetype plain = 0;
  for (qsizetype i = first - text.begin(); i < text.size(); ++i) {
    const char* escape = escapeOf(text[i].unicode());
    if (escape == nullptr) continue;
    bytes += QStringView(text).mid(plain, i - plain).toUtf8();
    bytes += escape;
    plain = i + 1;
  }
  return bytes + QStringView(text).mid(plain).toUtf8();
}

QByteArray typeAttributes(const FieldDefinition& column) {
  switch (column.type) {
    case DataType::Integer:
      return "dt:type='int' dt:maxLength='4' rs:precision='10' rs:fixedlength='true'";
    case DataType::Double:
      return "dt:type='float' dt:maxLength='8' rs:precision='15' rs:fixedlength='true'";
    case DataType::Date:
      return "dt:type='dateTime' rs:dbtype='variantdate' dt:maxLength='16' rs:fixedlength='true'";
    case DataType::Boolean:
      return "dt:type='boolean' dt:maxLength='2' rs:fixedlength='true'";
    case DataType::Decimal:
      return "dt:type='number' rs:dbtype='decimal' dt:maxLength='16'";
    case DataType::LongVarBinary:
      return "dt:type='bin.hex' dt:maxLength='" + QByteArray::number(column.definedSize) + "' rs:long='true'";
    default:
      return "dt:type='string' dt:maxLength='" + QByteArray::number(column.definedSize) + "'";
  }
}

QByteArray attribute(const char* name, const QString& value) {
  return value.isEmpty() ? QByteArray() : " " + QByteArray(name) + "='" + escaped(value) + "'";
}

QByteArray flag(const char* name, bool isSet) {
  return isSet ? " " + QByteArray(name) + "='true'" : QByteArray();
}

QByteArray attributeType(const FieldDefinition& column, const QByteArray& name, int number) {
  QByteArray text = "\t\t<s:AttributeType name='" + name + "'";
  if (QString::fromLatin1(name) != column.name) text += attribute("rs:name", column.name);
  text += " rs:number='" + QByteArray::number(number) + "'" + flag("rs:nullable", column.nullable) +
          " rs:maydefer='true'" + (column.autoIncrement ? " rs:writeunknown='true'" : " rs:write='true'") +
          attribute("rs:basetable", column.baseTable) + attribute("rs:basecolumn", column.baseColumn) +
          flag("rs:keycolumn", column.key) + flag("rs:autoincrement", column.autoIncrement);
  return text + ">" + lineEnd + "\t\t\t<s:datatype " + typeAttributes(column) + "/>" + lineEnd +
         "\t\t</s:AttributeType>" + lineEnd;
}

}  // namespace

std::vector<QByteArray> attributeNames(const std::vector<FieldDefinition>& columns) {
  std::vector<QByteArray> names;
  std::set<QString> taken;
  for (const FieldDefinition& column : columns) {
    const bool isOwn = isPlainName(column.name) && taken.insert(column.name.toLower()).second;
    names.push_back(isOwn ? column.name.toLatin1()
                          : "c" + QByteArray::number(static_cast<int>(names.size())));
  }
  return names;
}

Writer::Writer(const QString& path, std::vector<FieldDefinition> columns)
    : m_file(path), m_columns(std::move(columns)), m_names(attributeNames(m_columns)) {
  writeSchema();
}

void Writer::writeSchema() {
  m_text += QByteArray("<xml xmlns:s='") + schemaSpace + "'" + lineEnd + "\txmlns:dt='" + typeSpace + "'" +
            lineEnd + "\txmlns:rs='" + rowsetSpace + "'" + lineEnd + "\txmlns:z='#RowsetSchema'>" + lineEnd +
            "<s:Schema id='RowsetSchema'>" + lineEnd +
            "\t<s:ElementType name='row' content='eltOnly' rs:updatable='true'>" + lineEnd;
  for (std::size_t i = 0; i < m_columns.size(); ++i) {
    m_text += attributeType(m_columns[i], m_names[i], static_cast<int>(i) + 1);
  }
  m_text += QByteArray("\t\t<s:extends type='rs:rowbase'/>") + lineEnd + "\t</s:ElementType>" + lineEnd +
            "</s:Schema>" + lineEnd + "<rs:data>" + lineEnd;
}

void Writer::row(const ValueOf& value) {
  writeRow("\t", value);
}

void Writer::pendingRow(const ValueOf& value) {
  m_text += QByteArray("\t<rs:insert>") + lineEnd;
  writeRow("\t\t", value);
  m_text += QByteArray("\t</rs:insert>") + lineEnd;
}

void Writer::writeRow(const QByteArray& indent, const ValueOf& value) {
  ++m_row;
  m_text += indent + "<z:row";
  for (std::size_t i = 0; i < m_columns.size(); ++i) appendValue(i, value(static_cast<int>(i)));
  m_text += QByteArray("/>") + lineEnd;
  if (m_text.size() >= flushedAt) flush();
}

void Writer::appendValue(std::size_t column, const QVariant& value) {
  // A binary without bytes is written like Null.
  const bool isEmptyBinary = value.typeId() == QMetaType::QByteArray && value.toByteArray().isEmpty();
  if (!value.isValid() || isEmptyBinary) return;
  m_text += " " + m_names[column] + "='";
  if (value.typeId() == QMetaType::QByteArray) {
    m_text += value.toByteArray().toHex();
  } else if (value.typeId() == QMetaType::QDateTime) {
    m_text += value.toDateTime().toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss")).toLatin1();
  } else if (m_columns[column].type == DataType::Boolean) {
    m_text += value.toBool() ? "True" : "False";
  } else if (value.typeId() == QMetaType::Double) {
    m_text += QByteArray::number(value.toDouble(), 'g', QLocale::FloatingPointShortest);
  } else {
    appendText(column, value.toString());
  }
  m_text += '\'';
}

void Writer::appendText(std::size_t column, const QString& text) {
  const bool isWritable = text.isValidUtf16() && std::none_of(text.begin(), text.end(), [](QChar c) {
                            return isForbidden(c.unicode());
                          });
  if (!isWritable) {
    refuse(QStringLiteral("第 %1 条记录的“%2”含有 XML 不能存放的控制字符")
               .arg(QString::number(m_row), m_columns[column].name));
  }
  m_text += escaped(text);
}

void Writer::flush() {
  m_file.write(m_text);
  m_text.clear();
}

void Writer::finish() {
  m_text += QByteArray("</rs:data>") + lineEnd + "</xml>";
  flush();
  m_file.commit();
}

}  // namespace persisted
