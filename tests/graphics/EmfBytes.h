#pragma once

#include <initializer_list>

#include <QByteArray>
#include <QSize>
#include <QString>

/// Writes an enhanced metafile record by record.
class EmfBytes {
 public:
  EmfBytes& record(int type, const QByteArray& parameters) {
    m_records += numbers({type, static_cast<int>(parameters.size()) + 8}) + parameters;
    ++m_count;
    return *this;
  }
  EmfBytes& record(int type, std::initializer_list<int> parameters) {
    return record(type, numbers(parameters));
  }
  /// Black text whose left upper corner is at `x`, `y`.
  EmfBytes& text(int x, int y, const QString& text) {
    const auto count = static_cast<int>(text.size());
    constexpr int textAt = 76;
    const int advancesAt = textAt + (count + 1) / 2 * 4;
    QByteArray parameters = numbers({0, 0, -1, -1, 1, 0, 0, x, y, count, textAt, 0, 0, 0, 0, 0, advancesAt});
    parameters += QByteArray(reinterpret_cast<const char*>(text.utf16()), count * 2);
    parameters += QByteArray(advancesAt - 8 - parameters.size(), '\0');
    for (int i = 0; i < count; ++i) parameters += numbers({40});
    return record(84, parameters);
  }

  [[nodiscard]] static QByteArray numbers(std::initializer_list<int> values) {
    QByteArray bytes;
    for (const int value : values) {
      for (int shift = 0; shift < 32; shift += 8) bytes += static_cast<char>(value >> shift);
    }
    return bytes;
  }
  /// The whole file, whose drawing is bounded by `size` device units.
  [[nodiscard]] QByteArray file(QSize size) const {
    constexpr int headLength = 88;
    constexpr int endLength = 20;
    const auto length = static_cast<int>(m_records.size()) + headLength + endLength;
    return numbers({1,
                    headLength,
                    0,
                    0,
                    size.width(),
                    size.height(),
                    0,
                    0,
                    size.width() * 26,
                    size.height() * 26,
                    0x464D4520,
                    0x10000,
                    length,
                    m_count + 2,
                    8,
                    0,
                    0,
                    0,
                    1000,
                    1000,
                    260,
                    260}) +
           m_records + numbers({14, endLength, 0, 16, endLength});
  }

 private:
  QByteArray m_records;
  int m_count = 0;
};
