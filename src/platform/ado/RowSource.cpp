#include "ado/RowSource.h"

#include "ado/AdoError.h"

namespace ado {

void RowSource::makeFields() {
  const std::vector<FieldDefinition>& columns = definitions();
  m_fields.reserve(columns.size());
  for (std::size_t i = 0; i < columns.size(); ++i) {
    m_fields.emplace_back(*this, static_cast<int>(i), columns[i]);
  }
}

Field& RowSource::field(const QString& name) {
  for (Field& candidate : m_fields) {
    if (candidate.Name().compare(name, Qt::CaseInsensitive) == 0) return candidate;
  }
  throw AdoError(AdoErrorNumber::NotInCollection, QStringLiteral("记录集中没有字段“%1”").arg(name));
}

Field& RowSource::field(int index) {
  if (index < 0 || index >= fieldCount()) {
    throw AdoError(AdoErrorNumber::NotInCollection, QStringLiteral("记录集中没有第 %1 个字段").arg(index));
  }
  return m_fields[static_cast<std::size_t>(index)];
}

}  // namespace ado
