#pragma once

#include <vector>

#include "ado/RowSource.h"

namespace ado {

/// The rows of a persisted recordset, read whole. They cannot be changed.
class FileRows : public RowSource {
 public:
  explicit FileRows(const QString& path);

  [[nodiscard]] bool atEnd() const override { return m_current >= m_rows.size(); }
  void moveNext() override;
  [[nodiscard]] int rowCount() const override { return static_cast<int>(m_rows.size()); }

  [[nodiscard]] QVariant value(int column) override;
  [[noreturn]] void assign(int column, const QVariant& value) override;
  [[noreturn]] void addNew() override;
  [[noreturn]] void update() override;
  [[noreturn]] void remove() override;

  [[nodiscard]] const std::vector<FieldDefinition>& definitions() const override { return m_definitions; }
  void writeRows(persisted::Writer& writer) override;

 private:
  std::vector<FieldDefinition> m_definitions;
  std::vector<std::vector<QVariant>> m_rows;
  std::size_t m_current = 0;
};

}  // namespace ado
