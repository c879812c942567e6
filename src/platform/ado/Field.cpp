#include "ado/Field.h"

#include <utility>

#include "ado/RowSource.h"

namespace ado {

Field::Field(RowSource& rows, int index, FieldDefinition definition)
    : m_rows(rows), m_index(index), m_definition(std::move(definition)) {}

QVariant Field::Value() const {
  return m_rows.value(m_index);
}

void Field::setValue(const QVariant& value) {
  m_rows.assign(m_index, value);
}

}  // namespace ado
