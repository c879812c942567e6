#include "store/SqlCipherStatement.h"

#include "store/StoreError.h"

namespace store {

namespace {

// A row whose binaries are shorter has no pages of its own.
constexpr int longBinary = 1024;

sqlite3_stmt* prepared(sqlite3* handle, const char* sql, int size) {
  sqlite3_stmt* statement = nullptr;
  if (sqlite3_prepare_v2(handle, sql, size, &statement, nullptr) != SQLITE_OK) throwEngineError(handle);
  return statement;
}

}  // namespace

SqlCipherStatement::SqlCipherStatement(sqlite3* handle, const QString& sql) : m_handle(handle) {
  const QByteArray text = sql.toUtf8();
  const auto size = static_cast<int>(text.size()) + 1;
  m_statement = prepared(handle, text.constData(), size);
  if (m_statement == nullptr) throwEngineError(SQLITE_ERROR, QStringLiteral("empty statement"));
}

SqlCipherStatement::~SqlCipherStatement() {
  sqlite3_finalize(m_probe);
  sqlite3_finalize(m_statement);
}

void SqlCipherStatement::bind(int position, const QVariant& value) {
  int code = SQLITE_OK;
  switch (value.typeId()) {
    case QMetaType::UnknownType:
      code = sqlite3_bind_null(m_statement, position);
      break;
    case QMetaType::Int:
    case QMetaType::LongLong:
      code = sqlite3_bind_int64(m_statement, position, value.toLongLong());
      break;
    case QMetaType::Double:
      code = sqlite3_bind_double(m_statement, position, value.toDouble());
      break;
    case QMetaType::QByteArray: {
      const QByteArray& held = m_bound.emplace_back(value.toByteArray());
      code = sqlite3_bind_blob64(m_statement, position, held.isNull() ? "" : held.constData(),
                                 static_cast<sqlite3_uint64>(held.size()), SQLITE_STATIC);
      break;
    }
    default: {
      const QByteArray text = value.toString().toUtf8();
      code = sqlite3_bind_text(m_statement, position, text.constData(), static_cast<int>(text.size()),
                               SQLITE_TRANSIENT);
    }
  }
  if (code != SQLITE_OK) throwEngineError(m_handle);
}

bool SqlCipherStatement::step() {
  const int code = sqlite3_step(m_statement);
  if (code == SQLITE_ROW) {
    if (holdsLongBinary()) requireWholePages();
    return true;
  }
  if (code != SQLITE_DONE) throwEngineError(m_handle);
  return false;
}

bool SqlCipherStatement::holdsLongBinary() const {
  for (int index = sqlite3_data_count(m_statement) - 1; index >= 0; --index) {
    if (sqlite3_column_type(m_statement, index) == SQLITE_BLOB &&
        sqlite3_column_bytes(m_statement, index) >= longBinary) {
      return true;
    }
  }
  return false;
}

/// The engine hands out a page that cannot be decrypted as zeros, and fails only at the next page that it
/// reads: when it was the last one of a long binary, that failure would never be seen.
void SqlCipherStatement::requireWholePages() {
  if (m_probe == nullptr) m_probe = prepared(m_handle, "SELECT 1 FROM sqlite_master", -1);
  const int code = sqlite3_step(m_probe);
  sqlite3_reset(m_probe);
  if (code != SQLITE_ROW) throwDamage();
}

void SqlCipherStatement::reset() noexcept {
  sqlite3_reset(m_statement);
  sqlite3_clear_bindings(m_statement);
  m_bound.clear();
}

int SqlCipherStatement::columnCount() const {
  return sqlite3_column_count(m_statement);
}

ColumnInfo SqlCipherStatement::column(int index) const {
  ColumnInfo info;
  info.name = QString::fromUtf8(sqlite3_column_name(m_statement, index));
  const char* table = sqlite3_column_table_name(m_statement, index);
  const char* origin = sqlite3_column_origin_name(m_statement, index);
  if (table == nullptr || origin == nullptr) return info;
  info.baseTable = QString::fromUtf8(table);
  info.baseColumn = QString::fromUtf8(origin);
  info.declaredType = QString::fromUtf8(sqlite3_column_decltype(m_statement, index));
  int notNull = 0;
  int key = 0;
  int autoIncrement = 0;
  if (sqlite3_table_column_metadata(m_handle, nullptr, table, origin, nullptr, nullptr, &notNull, &key,
                                    &autoIncrement) != SQLITE_OK) {
    return info;  // a view's column
  }
  info.notNull = notNull != 0;
  info.autoIncrement = autoIncrement != 0;
  info.rowKey = key != 0 && info.declaredType.compare(QLatin1String("INTEGER"), Qt::CaseInsensitive) == 0;
  return info;
}

QVariant SqlCipherStatement::value(int index) const {
  switch (sqlite3_column_type(m_statement, index)) {
    case SQLITE_INTEGER:
      return static_cast<qlonglong>(sqlite3_column_int64(m_statement, index));
    case SQLITE_FLOAT:
      return sqlite3_column_double(m_statement, index);
    case SQLITE_TEXT:
      return QString::fromUtf8(*text(index));
    case SQLITE_BLOB:
      return bytes(index);
    default:
      return {};
  }
}

std::optional<QByteArrayView> SqlCipherStatement::text(int index) const {
  if (sqlite3_column_type(m_statement, index) != SQLITE_TEXT) return std::nullopt;
  const auto* utf8 = reinterpret_cast<const char*>(sqlite3_column_text(m_statement, index));
  return QByteArrayView(utf8, sqlite3_column_bytes(m_statement, index));
}

QByteArray SqlCipherStatement::bytes(int index) const {
  const auto* data = static_cast<const char*>(sqlite3_column_blob(m_statement, index));
  return data == nullptr ? QByteArray("", 0) : QByteArray(data, sqlite3_column_bytes(m_statement, index));
}

}  // namespace store
