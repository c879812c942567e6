#pragma once

#include <QByteArrayView>
#include <QPoint>
#include <QtEndian>

namespace graphics {

/// A number was asked for that lies beyond the record's end.
class ShortRecord {};

/// The parameters of one record of a metafile. Every access is checked: ShortRecord is thrown beyond the end.
class MetafileRecord {
 public:
  MetafileRecord(int function, QByteArrayView parameters) : m_function(function), m_parameters(parameters) {}

  [[nodiscard]] int function() const { return m_function; }
  /// Numbers of 16 and 32 bits; `word` counts in words of 16 bits from the first parameter.
  [[nodiscard]] int i16(qsizetype word) const { return read<qint16>(word * 2); }
  [[nodiscard]] int u16(qsizetype word) const { return read<quint16>(word * 2); }
  [[nodiscard]] quint32 u32(qsizetype word) const { return read<quint32>(word * 2); }
  [[nodiscard]] int byte(qsizetype at) const { return read<quint8>(at); }
  /// The point whose y is at `word` and whose x follows, as most records store it.
  [[nodiscard]] QPoint pointYx(qsizetype word) const { return {i16(word + 1), i16(word)}; }
  /// The point whose x is at `word` and whose y follows, as lists of points store it.
  [[nodiscard]] QPoint pointXy(qsizetype word) const { return {i16(word), i16(word + 1)}; }
  [[nodiscard]] QByteArrayView bytes(qsizetype from, qsizetype length) const {
    if (from < 0 || length < 0 || from > m_parameters.size() || length > m_parameters.size() - from) {
      throw ShortRecord();
    }
    return m_parameters.sliced(from, length);
  }
  [[nodiscard]] QByteArrayView bytesFrom(qsizetype from) const {
    return bytes(from, m_parameters.size() - from);
  }

 private:
  template <typename Number>
  [[nodiscard]] Number read(qsizetype at) const {
    return qFromLittleEndian<Number>(bytes(at, sizeof(Number)).data());
  }

  int m_function;
  QByteArrayView m_parameters;
};

}  // namespace graphics
