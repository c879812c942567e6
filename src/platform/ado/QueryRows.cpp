#include "ado/QueryRows.h"

#include <utility>

#include "ado/FieldTypes.h"
#include "ado/Translation.h"
#include "persisted/Writer.h"
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

QueryRows::QueryRows(const QString& source, std::shared_ptr<Connection> connection, bool changeable)
    : m_connection(std::move(connection)), m_changeable(changeable) {
  m_database = m_connection->database();
  m_query = analyse(*database(), store::translated(source, store::StatementUse::Query));
  load();
  typeExpressions();
  makeFields();
}

void QueryRows::load() {
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
void QueryRows::typeExpressions() {
  if (m_rowCount == 0) return;
  for (std::size_t i = 0; i < m_query.fields.size(); ++i) {
    FieldDefinition& definition = m_query.fields[i];
    if (definition.baseTable.isEmpty()) definition.type = typeOfValue(m_values.value(i));
  }
}

std::shared_ptr<store::Database> QueryRows::database() const {
  std::shared_ptr<store::Database> open = m_database.lock();
  if (open == nullptr) {
    throw AdoError(AdoErrorNumber::ConnectionNotOpen, QStringLiteral("记录集的数据库连接已经关闭"));
  }
  return open;
}

void QueryRows::moveNext() {
  if (m_adding || !m_assigned.empty()) update();
  if (atEnd()) throw AdoError(AdoErrorNumber::NoCurrentRecord, QStringLiteral("已经没有记录"));
  ++m_current;
}

std::size_t QueryRows::place(std::size_t row, int column) const {
  return row * m_query.fields.size() + static_cast<std::size_t>(column);
}

QVariant QueryRows::value(int column) {
  requireRow();
  const auto assigned = m_assigned.find(column);
  if (assigned != m_assigned.end()) return assigned->second;
  if (m_adding) return {};
  return storedValue(m_current, column);
}

QVariant QueryRows::storedValue(std::size_t row, int column) {
  const std::size_t stored = place(row, column);
  if (m_values.isLeftInDatabase(stored)) return translatingErrors([&] { return fetch(row, column); });
  const FieldDefinition& definition = m_query.fields[static_cast<std::size_t>(column)];
  if (const auto text = m_values.text(stored)) return fromStoredText(*text, definition);
  return fromStored(m_values.value(stored), definition);
}

QVariant QueryRows::fetch(std::size_t row, int column) {
  const int keyColumn = m_query.keyColumns[static_cast<std::size_t>(column)];
  const auto keyOfRow = [&](std::size_t other) {
    const bool left = !m_deleted[other] && m_values.isLeftInDatabase(place(other, column));
    return left ? m_values.value(place(other, keyColumn)) : QVariant();
  };
  QVariant value;
  if (!readAhead(column).fetch(*database(), row, m_rowCount, keyOfRow, value)) rowGone();
  return value;
}

void QueryRows::writeRows(persisted::Writer& writer) {
  if (!m_adding && !m_assigned.empty()) {
    notAllowed(QStringLiteral("当前记录的修改还没有写入数据库，不能保存记录集"));
  }
  for (std::size_t row = 0; row < m_rowCount; ++row) {
    if (!m_deleted[row]) writer.row([&](int column) { return storedValue(row, column); });
  }
  if (m_adding) writer.pendingRow([this](int column) { return value(column); });
}

ReadAhead& QueryRows::readAhead(int column) {
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

void QueryRows::assign(int column, const QVariant& value) {
  requireChangeable();
  requireRow();
  const FieldDefinition& definition = m_query.fields[static_cast<std::size_t>(column)];
  if (definition.autoIncrement || column == m_query.tableKey) {
    notAllowed(QStringLiteral("字段“%1”由数据库赋值，不能修改").arg(definition.name));
  }
  m_assigned[column] = converted(value, definition);
}

void QueryRows::requireRow() const {
  if (atEnd()) throw AdoError(AdoErrorNumber::NoCurrentRecord, QStringLiteral("没有当前记录"));
  if (!m_adding && m_deleted[m_current]) rowGone();
}

void QueryRows::requireChangeable() const {
  if (!m_changeable) notAllowed(QStringLiteral("记录集是只读的"));
  if (m_query.table.isEmpty() || m_query.tableKey == Query::none) {
    notAllowed(QStringLiteral("记录集不是来自一个含有主键的表，不能修改"));
  }
}

void QueryRows::addNew() {
  requireChangeable();
  if (m_adding || !m_assigned.empty()) update();
  m_adding = true;
}

void QueryRows::update() {
  requireChangeable();
  requireRow();
  if (m_adding) {
    insertRow();
  } else if (!m_assigned.empty()) {
    changeRow();
  }
  m_assigned.clear();
}

void QueryRows::insertRow() {
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

void QueryRows::changeRow() {
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
void QueryRows::keepAssigned() {
  m_readAhead.clear();
  for (const auto& [column, value] : m_assigned) {
    const bool left = m_query.deferred(column) && value.isValid();
    m_values.set(place(m_current, column), left ? leftInDatabase : toStored(value));
  }
}

void QueryRows::remove() {
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
