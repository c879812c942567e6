#include "persisted/DataSection.h"

#include <algorithm>
#include <optional>

#include "persisted/Format.h"
#include "persisted/Refusal.h"
#include "persisted/ValueText.h"

namespace persisted {

namespace {

/// As much of a value as a message has room for.
QString beginningOf(QByteArrayView value) {
  constexpr qsizetype most = 40;
  constexpr qsizetype bytesOfCharacter = 4;
  return QString::fromUtf8(value.first(std::min(value.size(), most * bytesOfCharacter))).left(most);
}

}  // namespace

bool DataSection::isWithin(Part part) const {
  return std::find(m_open.begin(), m_open.end(), part) != m_open.end();
}

DataSection::Part DataSection::partOf(QByteArrayView space, QByteArrayView name) const {
  if (isWithin(Part::Row)) refuse(QStringLiteral("第 %1 条记录含有下级记录").arg(m_rowNumber));
  if (space == m_rowSpace && name == m_schema.rowName()) return Part::Row;
  if (space == rowsetSpace) {
    if (name == "insert" && m_open.empty()) return Part::Insert;
    if (name == "delete" && m_open.empty()) return Part::Delete;
    if (name == "update" && m_open.empty()) return Part::Update;
    if (name == "original" && m_open == std::vector{Part::Update}) return Part::Original;
  }
  refuse(QStringLiteral("第 %1 条记录之后有不认识的元素“%2”")
             .arg(QString::number(m_rowNumber), QString::fromUtf8(name)));
}

void DataSection::startElement(QByteArrayView space, QByteArrayView name, const XmlAttributes& attributes) {
  const Part part = partOf(space, name);
  if (part == Part::Update) m_original.clear();
  if (part == Part::Row) startRow(attributes);
  m_open.push_back(part);
}

void DataSection::endElement() {
  m_open.pop_back();
}

void DataSection::startRow(const XmlAttributes& attributes) {
  ++m_rowNumber;
  if (isWithin(Part::Delete)) return;
  const bool changes = isWithin(Part::Update) && !isWithin(Part::Original);
  if (changes && m_original.empty())
    refuse(QStringLiteral("第 %1 条记录的修改没有原来的值").arg(m_rowNumber));
  Row row = changes ? m_original : Row(m_schema.columns().size());
  readValues(row, attributes);
  if (isWithin(Part::Original)) {
    m_original = std::move(row);
  } else {
    m_rows.push_back(std::move(row));
  }
}

void DataSection::readValues(Row& row, const XmlAttributes& attributes) const {
  attributes.each([&](const XmlAttribute& attribute) {
    if (!attribute.space.isEmpty()) return;
    const int column = m_schema.columnOf(attribute.name);
    if (column < 0) return;
    const FieldDefinition& definition = m_schema.columns()[static_cast<std::size_t>(column)];
    std::optional<QVariant> value = valueOf(attribute.value, definition.type);
    if (!value) {
      refuse(QStringLiteral("第 %1 条记录的“%2”的值不正确：%3")
                 .arg(QString::number(m_rowNumber), definition.name, beginningOf(attribute.value)));
    }
    row[static_cast<std::size_t>(column)] = std::move(*value);
  });
  setNulls(row, attributes.value(rowsetSpace, "forcenull"));
}

/// `names` are those of attributes, with blanks between them.
void DataSection::setNulls(Row& row, QByteArrayView names) const {
  for (const QByteArray& name : names.toByteArray().simplified().split(' ')) {
    const int column = m_schema.columnOf(name);
    if (column >= 0) row[static_cast<std::size_t>(column)] = QVariant();
  }
}

}  // namespace persisted
