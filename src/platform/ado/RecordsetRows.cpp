#include "ado/RecordsetRows.h"

#include <utility>

#include "ado/FieldTypes.h"
#include "ado/Translation.h"
#include "store/Dialect.h"

namespace ado {

namespace {

const QVariant leftInDatabase = QVariant::fromValue(nullptr);

[[noreturn]] void notAllowed(const QString& why) {
  throw AdoError(AdoErrorNumber::OperationNotAllowed, why);
}

[[noreturn]] void rowGone() {
  throw AdoError(AdoErrorNumber::NoCurrentRecord, QStringLiteral("记录已被删除，或者它的键值已改变"));
}

QString parameters(std::size_t count) {
  return QStringList(static_cast<qsizetype>(count), QStringLiteral("?")).join(u',');
}

}  // namespace

Recordset::Rows::Rows(Recordset& owner, const QString& source, std::shared_ptr<Connection> connection,
                      bool changeable)
    : m_owner(owner), m_connection(std::move(connection)), m_changeable(changeable) {
  m_database = m_connection->database();
  m_query = analyse(*database(), store::translated(source, store::StatementUse::Query));
  load();
  typeExpressions();
  m_fields.reserve(m_query.fields.size());
  for (int i = 0; i < static_cast<int>(m_query.fields.size()); ++i) {
    m_fields.emplace_back(m_owner, i, m_query.fields[static_cast<std::size_t>(i)]);
  }
}

void Recordset::Rows::load() {
  const std::shared_ptr<store::Statement> statement = database()->statement(m_query.sql);
  const store::StatementScope scope(*statement);
  const int columns = static_cast<int>(m_query.fields.size());
  while (statement->step()) {
    for (int i = 0; i < columns; ++i) {
      const std::optional<QByteArrayView> text = statement->text(i);
      if (m_query.deferred(i)) {
        m_values.append(text == QByteArrayView("null") ? QVariant() : leftInDatabase);
      } else if (text) {
        m_values.appendText(*text);
      } else {
        m_values.append(statement->value(i));
      }
    }
    ++m_rowCount;
  }
  m_deleted.resize(m_rowCount);
}

/// Only its values tell the type of an expression.
void Recordset::Rows::typeExpressions() {
  if (m_rowCount == 0) return;
  for (std::size_t i = 0; i < m_query.fields.size(); ++i) {
    FieldDefinition& definition = m_query.fields[i];
    if (definition.baseTable.isEmpty()) definition.type = typeOfValue(m_values.value(i));
  }
}

std::shared_ptr<store::Database> Recordset::Rows::database() const {
  std::shared_ptr<store::Database> open = m_database.lock();
  if (open == nullptr) {
    throw AdoError(AdoErrorNumber::ConnectionNotOpen, QStringLiteral("记录集的数据库连接已经关闭"));
  }
  return open;
}

void Recordset::Rows::moveNext() {
  if (m_adding || !m_assigned.empty()) update();
  if (atEnd()) throw AdoError(AdoErrorNumber::NoCurrentRecord, QStringLiteral("已经没有记录"));
  ++m_current;
}

Field& Recordset::Rows::field(const QString& name) {
  for (Field& candidate : m_fields) {
    if (candidate.Name().compare(name, Qt::CaseInsensitive) == 0) return candidate;
  }
  throw AdoError(AdoErrorNumber::NotInCollection, QStringLiteral("记录集中没有字段“%1”").arg(name));
}

Field& Recordset::Rows::field(int index) {
  if (index < 0 || index >= fieldCount()) {
    throw AdoError(AdoErrorNumber::NotInCollection, QStringLiteral("记录集中没有第 %1 个字段").arg(index));
  }
  return m_fields[static_cast<std::size_t>(index)];
}

std::size_t Recordset::Rows::place(std::size_t row, int column) const {
  return row * m_query.fields.size() + static_cast<std::size_t>(column);
}

QVariant Recordset::Rows::value(int column) {
  requireRow();
  const auto assigned = m_assigned.find(column);
  if (assigned != m_assigned.end()) return assigned->second;
  if (m_adding) return {};
  const std::size_t stored = place(m_current, column);
  if (m_values.isLeftInDatabase(stored)) return translatingErrors([&] { return fetch(column); });
  const FieldDefinition& definition = m_query.fields[static_cast<std::size_t>(column)];
  if (const auto text = m_values.text(stored)) return fromStoredText(*text, definition);
  return fromStored(m_values.value(stored), definition);
}

QVariant Recordset::Rows::fetch(int column) {
  const int keyColumn = m_query.keyColumns[static_cast<std::size_t>(column)];
  const auto keyOfRow = [&](std::size_t row) {
    const bool left = !m_deleted[row] && m_values.isLeftInDatabase(place(row, column));
    return left ? m_values.value(place(row, keyColumn)) : QVariant();
  };
  QVariant value;
  if (!readAhead(column).fetch(*database(), m_current, m_rowCount, keyOfRow, value)) rowGone();
  return value;
}

ReadAhead& Recordset::Rows::readAhead(int column) {
  const auto known = m_readAhead.find(column);
  if (known != m_readAhead.end()) return known->second;
  const FieldDefinition& definition = m_query.fields[static_cast<std::size_t>(column)];
  const int keyColumn = m_query.keyColumns[static_cast<std::size_t>(column)];
  const QString& keyName = m_query.fields[static_cast<std::size_t>(keyColumn)].baseColumn;
  const QString sql = QStringLiteral("SELECT ") + store::quotedName(definition.baseColumn) +
                      QStringLiteral(" FROM ") + store::quotedName(definition.baseTable) +
                      QStringLiteral(" WHERE ") + store::quotedName(keyName) + QStringLiteral("=?");
  return m_readAhead.emplace(column, ReadAhead(sql)).first->second;
}

void Recordset::Rows::assign(int column, const QVariant& value) {
  requireChangeable();
  requireRow();
  const FieldDefinition& definition = m_query.fields[static_cast<std::size_t>(column)];
  if (definition.autoIncrement || column == m_query.tableKey) {
    notAllowed(QStringLiteral("字段“%1”由数据库赋值，不能修改").arg(definition.name));
  }
  m_assigned[column] = converted(value, definition);
}

void Recordset::Rows::requireRow() const {
  if (atEnd()) throw AdoError(AdoErrorNumber::NoCurrentRecord, QStringLiteral("没有当前记录"));
  if (!m_adding && m_deleted[m_current]) rowGone();
}

void Recordset::Rows::requireChangeable() const {
  if (!m_changeable) notAllowed(QStringLiteral("记录集是只读的"));
  if (m_query.table.isEmpty() || m_query.tableKey == Query::none) {
    notAllowed(QStringLiteral("记录集不是来自一个含有主键的表，不能修改"));
  }
}

void Recordset::Rows::addNew() {
  requireChangeable();
  if (m_adding || !m_assigned.empty()) update();
  m_adding = true;
}

void Recordset::Rows::update() {
  requireChangeable();
  requireRow();
  if (m_adding) {
    insertRow();
  } else if (!m_assigned.empty()) {
    changeRow();
  }
  m_assigned.clear();
}

void Recordset::Rows::insertRow() {
  QStringList columns;
  QVariantList values;
  for (const auto& [column, value] : m_assigned) {
    columns.append(store::quotedName(m_query.fields[static_cast<std::size_t>(column)].baseColumn));
    values.append(toStored(value));
  }
  const QString rest = columns.isEmpty() ? QStringLiteral(" DEFAULT VALUES")
                                         : u'(' + columns.join(u',') + QStringLiteral(") VALUES(") +
                                               parameters(m_assigned.size()) + u')';
  database()->run(QStringLiteral("INSERT INTO ") + store::quotedName(m_query.table) + rest, values);
  m_values.appendNulls(m_query.fields.size());
  m_deleted.push_back(false);
  m_current = m_rowCount++;
  m_adding = false;
  m_values.set(place(m_current, m_query.tableKey), database()->lastInsertedKey());
  keepAssigned();
}

void Recordset::Rows::changeRow() {
  QStringList assignments;
  QVariantList values;
  for (const auto& [column, value] : m_assigned) {
    assignments.append(store::quotedName(m_query.fields[static_cast<std::size_t>(column)].baseColumn) +
                       QStringLiteral("=?"));
    values.append(toStored(value));
  }
  values.append(m_values.value(place(m_current, m_query.tableKey)));
  const QString keyName = m_query.fields[static_cast<std::size_t>(m_query.tableKey)].baseColumn;
  const int changed =
      database()->run(QStringLiteral("UPDATE ") + store::quotedName(m_query.table) + QStringLiteral(" SET ") +
                          assignments.join(u',') + QStringLiteral(" WHERE ") + store::quotedName(keyName) +
                          QStringLiteral("=?"),
                      values);
  if (changed == 0) rowGone();
  keepAssigned();
}

/// Long binaries go back to being read when they are asked for.
void Recordset::Rows::keepAssigned() {
  m_readAhead.clear();
  for (const auto& [column, value] : m_assigned) {
    const bool left = m_query.deferred(column) && value.isValid();
    m_values.set(place(m_current, column), left ? leftInDatabase : toStored(value));
  }
}

void Recordset::Rows::remove() {
  requireChangeable();
  requireRow();
  m_assigned.clear();
  if (std::exchange(m_adding, false)) return;
  const QString keyName = m_query.fields[static_cast<std::size_t>(m_query.tableKey)].baseColumn;
  const int deleted =
      database()->run(QStringLiteral("DELETE FROM ") + store::quotedName(m_query.table) +
                          QStringLiteral(" WHERE ") + store::quotedName(keyName) + QStringLiteral("=?"),
                      {m_values.value(place(m_current, m_query.tableKey))});
  if (deleted == 0) rowGone();
  m_deleted[m_current] = true;
}

}  // namespace ado
