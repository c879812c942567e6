#include "exchange/CsvReader.h"

#include "runtime/RuntimeError.h"

namespace {

constexpr qsizetype mostFields = 64;

bool isLineEnd(char c) {
  return c == '\n' || c == '\r';
}

}  // namespace

CsvRecord CsvReader::next() {
  CsvRecord record;
  record.line = m_line;
  takeField(record);
  while (peek() == ',') {
    ++m_at;
    takeField(record);
  }
  record.lastLine = m_line;
  takeLineEnd();
  return record;
}

bool CsvReader::atFieldEnd() const {
  return atEnd() || m_bytes.at(m_at) == ',' || isLineEnd(m_bytes.at(m_at));
}

void CsvReader::takeField(CsvRecord& record) {
  const bool quoted = peek() == '"';
  QByteArray field = quoted ? takeQuoted() : QByteArray();
  const qsizetype begin = m_at;
  while (!atFieldEnd()) ++m_at;
  const QByteArray rest = m_bytes.mid(begin, m_at - begin);
  if (quoted && !rest.trimmed().isEmpty()) record.strayText = true;
  ++record.fieldCount;
  if (record.fields.size() < mostFields) record.fields.append(field + rest);
}

QByteArray CsvReader::takeQuoted() {
  const int firstLine = m_line;
  QByteArray field;
  for (++m_at; !atEnd(); ++m_at) {
    const char c = m_bytes.at(m_at);
    const char following = m_at + 1 < m_bytes.size() ? m_bytes.at(m_at + 1) : '\0';
    if (c == '"') {
      ++m_at;
      if (following != '"') return field;
    }
    if (c == '\n' || (c == '\r' && following != '\n')) ++m_line;
    field += c;
  }
  throw runtime::RuntimeError(runtime::ErrorNumber::InvalidCall,
                              QStringLiteral("第 %1 行：引号没有结束").arg(firstLine));
}

void CsvReader::takeLineEnd() {
  if (atEnd()) return;
  const bool twoBytes = m_bytes.at(m_at) == '\r' && m_at + 1 < m_bytes.size() && m_bytes.at(m_at + 1) == '\n';
  m_at += twoBytes ? 2 : 1;
  ++m_line;
}
