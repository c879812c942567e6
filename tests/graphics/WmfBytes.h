#pragma once

#include <initializer_list>

#include <QByteArray>

/// Writes a metafile record by record.
class WmfBytes {
 public:
  WmfBytes& record(int function, const QByteArray& parameters) {
    number(static_cast<int>(parameters.size() / 2) + 3, 4);
    number(function, 2);
    m_records += parameters;
    return *this;
  }
  WmfBytes& record(int function, std::initializer_list<int> words) {
    return record(function, wordsOf(words));
  }

  [[nodiscard]] static QByteArray wordsOf(std::initializer_list<int> words) {
    QByteArray bytes;
    for (const int word : words) append(bytes, word, 2);
    return bytes;
  }
  /// The whole file without the head that places it.
  [[nodiscard]] QByteArray plain() const {
    return wordsOf({1, 9, 0x300, 0, 0, 8, 0, 0, 0}) + m_records + wordsOf({3, 0, 0});
  }
  [[nodiscard]] QByteArray placed(int width, int height, int inch = 1000) const {
    return wordsOf({0xCDD7, 0x9AC6, 0, 0, 0, width, height, inch, 0, 0, 0}) + plain();
  }

 private:
  static void append(QByteArray& bytes, int number, int length) {
    for (int i = 0; i < length; ++i) bytes += static_cast<char>(number >> (8 * i));
  }
  void number(int number, int length) { append(m_records, number, length); }

  QByteArray m_records;
};
