#pragma once

#include <vector>

#include "ado/Field.h"

namespace persisted {
class Writer;
}

namespace ado {

/// What an open recordset holds: its fields, its rows, the position and what was assigned and not yet
/// written. Failures are AdoError or come from the layers below.
class RowSource {
 public:
  RowSource(const RowSource&) = delete;
  RowSource& operator=(const RowSource&) = delete;
  virtual ~RowSource() = default;

  /// Names are compared without regard to letter case.
  [[nodiscard]] Field& field(const QString& name);
  [[nodiscard]] Field& field(int index);
  [[nodiscard]] int fieldCount() const { return static_cast<int>(m_fields.size()); }

  [[nodiscard]] virtual bool atEnd() const = 0;
  virtual void moveNext() = 0;
  [[nodiscard]] virtual int rowCount() const = 0;

  /// The value at the current row.
  [[nodiscard]] virtual QVariant value(int column) = 0;
  virtual void assign(int column, const QVariant& value) = 0;
  virtual void addNew() = 0;
  virtual void update() = 0;
  virtual void remove() = 0;

  [[nodiscard]] virtual const std::vector<FieldDefinition>& definitions() const = 0;
  /// Writes every row, whatever the position, which stays.
  virtual void writeRows(persisted::Writer& writer) = 0;

 protected:
  RowSource() = default;
  /// Makes the fields out of definitions().
  void makeFields();

 private:
  std::vector<Field> m_fields;
};

}  // namespace ado
