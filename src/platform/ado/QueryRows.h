#pragma once

#include <map>
#include <memory>
#include <vector>

#include "ado/Connection.h"
#include "ado/Query.h"
#include "ado/ReadAhead.h"
#include "ado/RowSource.h"
#include "ado/RowValues.h"

namespace ado {

/// The rows of a query: copied, apart from long binaries, which are fetched when they are asked for.
class QueryRows : public RowSource {
 public:
  QueryRows(const QString& source, std::shared_ptr<Connection> connection, bool changeable);

  [[nodiscard]] bool atEnd() const override { return !m_adding && m_current >= m_rowCount; }
  void moveNext() override;
  [[nodiscard]] int rowCount() const override { return static_cast<int>(m_rowCount); }

  [[nodiscard]] QVariant value(int column) override;
  void assign(int column, const QVariant& value) override;
  void addNew() override;
  void update() override;
  void remove() override;

  [[nodiscard]] const std::vector<FieldDefinition>& definitions() const override { return m_query.fields; }
  void writeRows(persisted::Writer& writer) override;

 private:
  void load();
  void typeExpressions();
  [[nodiscard]] std::shared_ptr<store::Database> database() const;
  [[nodiscard]] std::size_t place(std::size_t row, int column) const;
  [[nodiscard]] QVariant storedValue(std::size_t row, int column);
  [[nodiscard]] QVariant fetch(std::size_t row, int column);
  [[nodiscard]] ReadAhead& readAhead(int column);
  void requireRow() const;
  void requireChangeable() const;
  void insertRow();
  void changeRow();
  void keepAssigned();

  std::shared_ptr<Connection> m_connection;
  /// Weak: closing the connection closes the file, whatever recordsets are still open.
  std::weak_ptr<store::Database> m_database;
  bool m_changeable;
  Query m_query;

  RowValues m_values;
  std::size_t m_rowCount = 0;
  std::size_t m_current = 0;
  std::vector<bool> m_deleted;
  bool m_adding = false;
  std::map<int, QVariant> m_assigned;
  std::map<int, ReadAhead> m_readAhead;
};

}  // namespace ado
