#include "ado/Field.h"

#include <utility>

#include "ado/Recordset.h"
#include "ado/RowSource.h"

namespace ado {

Field::Field(Recordset& owner, int index, FieldDefinition definition)
    : m_owner(owner), m_index(index), m_definition(std::move(definition)) {}

QVariant Field::Value() const {
  return m_owner.rows().value(m_index);
}

void Field::setValue(const QVariant& value) {
  m_owner.rows().assign(m_index, value);
}

}  // namespace ado
