#pragma once

#include <map>
#include <memory>
#include <vector>

#include "ado/Query.h"
#include "ado/ReadAhead.h"
#include "ado/Recordset.h"
#include "ado/RowValues.h"

namespace ado {

/// What an open recordset holds: the copied rows, the position and what was assigned and not yet written.
class Recordset::Rows {
 public:
  Rows(Recordset& owner, const QString& source, std::shared_ptr<Connection> connection, bool changeable);

  [[nodiscard]] bool atEnd() const { return !m_adding && m_current >= m_rowCount; }
  void moveNext();

  [[nodiscard]] Field& field(const QString& name);
  [[nodiscard]] Field& field(int index);
  [[nodiscard]] int rowCount() const { return static_cast<int>(m_rowCount); }
  [[nodiscard]] int fieldCount() const { return static_cast<int>(m_fields.size()); }

  [[nodiscard]] QVariant value(int column);
  void assign(int column, const QVariant& value);

  void addNew();
  void update();
  void remove();

 private:
  void load();
  void typeExpressions();
  [[nodiscard]] std::shared_ptr<store::Database> database() const;
  [[nodiscard]] std::size_t place(std::size_t row, int column) const;
  [[nodiscard]] QVariant fetch(int column);
  [[nodiscard]] ReadAhead& readAhead(int column);
  void requireRow() const;
  void requireChangeable() const;
  void insertRow();
  void changeRow();
  void keepAssigned();

  Recordset& m_owner;
  std::shared_ptr<Connection> m_connection;
  /// Weak: closing the connection closes the file, whatever recordsets are still open.
  std::weak_ptr<store::Database> m_database;
  bool m_changeable;
  Query m_query;
  std::vector<Field> m_fields;

  RowValues m_values;
  std::size_t m_rowCount = 0;
  std::size_t m_current = 0;
  std::vector<bool> m_deleted;
  bool m_adding = false;
  std::map<int, QVariant> m_assigned;
  std::map<int, ReadAhead> m_readAhead;
};

}  // namespace ado
