#include "persisted/SchemaSection.h"

#include <algorithm>
#include <utility>

#include "persisted/Format.h"
#include "persisted/Refusal.h"
#include "persisted/ValueText.h"

namespace persisted {

namespace {

bool isTrue(QByteArrayView value) {
  return value == "true" || value == "1";
}

}  // namespace

void SchemaSection::startElement(QByteArrayView space, QByteArrayView name, const XmlAttributes& attributes) {
  ++m_depth;
  if (space != schemaSpace) return;
  if (name == "ElementType") {
    startRowType(attributes);
  } else if (name == "AttributeType") {
    startColumn(attributes);
  } else if (name == "datatype" && m_columnAt != 0) {
    readType(attributes);
  } else if (name == "attribute" && m_rowTypeAt != 0) {
    m_named.push_back(attributes.value({}, "type").toByteArray());
  }
}

void SchemaSection::startRowType(const XmlAttributes& attributes) {
  const bool isSecond = m_rowTypeAt != 0 || !m_rowName.isEmpty();
  if (isSecond || !attributes.value(rowsetSpace, "relation").isNull()) {
    refuse(QStringLiteral("其中的记录集是分层的"));
  }
  m_rowTypeAt = m_depth;
  m_rowName = attributes.value({}, "name").toByteArray();
  if (m_rowName.isEmpty()) refuse(QStringLiteral("记录集的架构没有命名它的行"));
}

void SchemaSection::startColumn(const XmlAttributes& attributes) {
  if (m_found.size() == mostColumns) refuse(QStringLiteral("记录集的字段超过 %1 个").arg(mostColumns));
  Column column;
  column.xmlName = attributes.value({}, "name").toByteArray();
  if (column.xmlName.isEmpty()) refuse(QStringLiteral("记录集的架构中有一个字段没有名称"));
  const QByteArrayView realName = attributes.value(rowsetSpace, "name");
  column.definition.name = QString::fromUtf8(realName.isEmpty() ? QByteArrayView(column.xmlName) : realName);
  column.definition.baseTable = QString::fromUtf8(attributes.value(rowsetSpace, "basetable"));
  column.definition.baseColumn = QString::fromUtf8(attributes.value(rowsetSpace, "basecolumn"));
  column.definition.nullable = isTrue(attributes.value(rowsetSpace, "nullable"));
  column.definition.key = isTrue(attributes.value(rowsetSpace, "keycolumn"));
  column.definition.autoIncrement = isTrue(attributes.value(rowsetSpace, "autoincrement"));
  column.number = attributes.value(rowsetSpace, "number").toInt();
  column.inside = m_rowTypeAt != 0;
  m_found.push_back(std::move(column));
  m_columnAt = m_depth;
  readType(attributes);
}

/// The type stands in an element of its own or at the column itself.
void SchemaSection::readType(const XmlAttributes& attributes) {
  setType(m_found.back().definition, attributes.value(typeSpace, "type"),
          attributes.value(rowsetSpace, "dbtype"), attributes.value(typeSpace, "maxLength"));
}

void SchemaSection::endElement() {
  if (m_depth == m_columnAt) m_columnAt = 0;
  if (m_depth == m_rowTypeAt) m_rowTypeAt = 0;
  --m_depth;
}

/// Columns that stand beside the row's element belong to it in the order in which it names them.
void SchemaSection::pickNamed() {
  std::vector<Column> picked;
  for (const Column& column : m_found) {
    if (column.inside) picked.push_back(column);
  }
  for (const QByteArray& name : m_named) {
    const auto isNamed = [&name](const Column& column) { return !column.inside && column.xmlName == name; };
    const auto found = std::find_if(m_found.begin(), m_found.end(), isNamed);
    if (found != m_found.end()) picked.push_back(*found);
  }
  m_found = std::move(picked);
}

void SchemaSection::resolve() {
  if (m_rowName.isEmpty()) refuse(QStringLiteral("其中没有记录集的架构，不是记录集的 XML 文件"));
  pickNamed();
  if (m_found.empty()) refuse(QStringLiteral("记录集的架构没有字段"));
  const bool allNumbered =
      std::all_of(m_found.begin(), m_found.end(), [](const Column& column) { return column.number > 0; });
  if (allNumbered) {
    std::stable_sort(m_found.begin(), m_found.end(),
                     [](const Column& a, const Column& b) { return a.number < b.number; });
  }
  for (Column& column : m_found) {
    const bool isNew = m_places.emplace(column.xmlName, static_cast<int>(m_columns.size())).second;
    if (!isNew) refuse(QStringLiteral("记录集的架构中字段“%1”出现了两次").arg(column.definition.name));
    m_columns.push_back(std::move(column.definition));
  }
  m_found.clear();
}

int SchemaSection::columnOf(QByteArrayView name) const {
  const auto found = m_places.find(QByteArray::fromRawData(name.data(), name.size()));
  return found == m_places.end() ? -1 : found->second;
}

}  // namespace persisted
