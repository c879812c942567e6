#include "ado/FileRows.h"

#include <utility>

#include "ado/AdoError.h"
#include "persisted/Reader.h"
#include "persisted/Writer.h"

namespace ado {

namespace {

[[noreturn]] void refuseChange() {
  throw AdoError(AdoErrorNumber::OperationNotAllowed, QStringLiteral("文件中的记录集是只读的"));
}

}  // namespace

FileRows::FileRows(const QString& path) {
  persisted::Reader reader(path);
  m_definitions = reader.columns();
  std::vector<QVariant> values;
  while (reader.next(values)) m_rows.push_back(std::move(values));
  makeFields();
}

void FileRows::moveNext() {
  if (atEnd()) throw AdoError(AdoErrorNumber::NoCurrentRecord, QStringLiteral("已经没有记录"));
  ++m_current;
}

QVariant FileRows::value(int column) {
  if (atEnd()) throw AdoError(AdoErrorNumber::NoCurrentRecord, QStringLiteral("没有当前记录"));
  return m_rows[m_current][static_cast<std::size_t>(column)];
}

void FileRows::assign(int, const QVariant&) {
  refuseChange();
}

void FileRows::addNew() {
  refuseChange();
}

void FileRows::update() {
  refuseChange();
}

void FileRows::remove() {
  refuseChange();
}

void FileRows::writeRows(persisted::Writer& writer) {
  for (const std::vector<QVariant>& row : m_rows) {
    writer.row([&row](int column) { return row[static_cast<std::size_t>(column)]; });
  }
}

}  // namespace ado
