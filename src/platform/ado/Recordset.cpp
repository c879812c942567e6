#include "ado/Recordset.h"

#include "ado/FileRows.h"
#include "ado/QueryRows.h"
#include "ado/Translation.h"
#include "persisted/Writer.h"

namespace ado {

Recordset::Recordset() = default;

Recordset::~Recordset() = default;

void Recordset::Open(const QString& source, const std::shared_ptr<Connection>& connection, CursorType cursor,
                     LockType lock) {
  requireClosed();
  std::ignore = required(connection);
  const bool changeable = cursor == CursorType::Keyset && lock == LockType::Optimistic;
  m_rows = translatingErrors([&] { return std::make_unique<QueryRows>(source, connection, changeable); });
}

void Recordset::Open(const QString& path) {
  requireClosed();
  m_rows = translatingErrors([&] { return std::make_unique<FileRows>(path); });
}

void Recordset::Save(const QString& path, PersistFormat format) {
  if (format != PersistFormat::Xml) {
    throw AdoError(AdoErrorNumber::OperationNotAllowed, QStringLiteral("记录集只能保存为 XML"));
  }
  translatingErrors([&] {
    persisted::Writer writer(path, rows().definitions());
    rows().writeRows(writer);
    writer.finish();
  });
}

void Recordset::requireClosed() const {
  if (m_rows == nullptr) return;
  throw AdoError(AdoErrorNumber::OperationNotAllowed, QStringLiteral("记录集已经打开"));
}

void Recordset::Close() {
  m_rows.reset();
}

ObjectState Recordset::State() const {
  return m_rows == nullptr ? ObjectState::Closed : ObjectState::Open;
}

RowSource& Recordset::rows() const {
  if (m_rows == nullptr)
    throw AdoError(AdoErrorNumber::OperationNotAllowed, QStringLiteral("记录集没有打开"));
  return *m_rows;
}

bool Recordset::IsEOF() const {
  return rows().atEnd();
}

void Recordset::MoveNext() {
  translatingErrors([this] { rows().moveNext(); });
}

Field& Recordset::Fields(const QString& name) {
  return rows().field(name);
}

Field& Recordset::Fields(int index) {
  return rows().field(index);
}

int Recordset::FieldCount() const {
  return rows().fieldCount();
}

int Recordset::RecordCount() const {
  return rows().rowCount();
}

void Recordset::AddNew() {
  translatingErrors([this] { rows().addNew(); });
}

void Recordset::Update() {
  translatingErrors([this] { rows().update(); });
}

void Recordset::Delete() {
  translatingErrors([this] { rows().remove(); });
}

}  // namespace ado
