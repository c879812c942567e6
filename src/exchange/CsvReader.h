#pragma once

#include <QByteArray>
#include <QList>

/// One record of a CSV file.
struct CsvRecord {
  /// The lines of the file, from 1, on which it begins and ends.
  int line = 0;
  int lastLine = 0;
  /// Bytes of the fields without their quotes; those beyond the 64th are left out.
  QList<QByteArray> fields{};
  /// How many fields there are.
  int fieldCount = 0;
  /// Text stands between a closing quote and the end of its field.
  bool strayText = false;
};

/// Takes CSV bytes apart: fields between commas, lines that end in LF, CR LF or CR, quotes around fields that
/// hold any of these, doubled quotes inside. Works on bytes, since neither UTF-8 nor GBK has these characters
/// inside another one.
class CsvReader {
 public:
  /// `bytes` are without a byte order mark.
  explicit CsvReader(QByteArray bytes) : m_bytes(std::move(bytes)) {}

  [[nodiscard]] bool atEnd() const { return m_at >= m_bytes.size(); }
  /// The next record; must not be called at the end. A quote that is never closed is a runtime::RuntimeError
  /// that names its line: where the record ends cannot be known.
  [[nodiscard]] CsvRecord next();

 private:
  [[nodiscard]] char peek() const { return atEnd() ? '\0' : m_bytes.at(m_at); }
  [[nodiscard]] bool atFieldEnd() const;
  void takeField(CsvRecord& record);
  [[nodiscard]] QByteArray takeQuoted();
  void takeLineEnd();

  QByteArray m_bytes;
  qsizetype m_at = 0;
  int m_line = 1;
};
