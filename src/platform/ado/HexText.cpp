#include "ado/HexText.h"

#include <array>

namespace ado {

namespace {

constexpr signed char noDigit = -1;
constexpr signed char space = -2;

constexpr std::array<signed char, 256> makeDigits() {
  std::array<signed char, 256> digits{};
  digits.fill(noDigit);
  for (int i = 0; i < 10; ++i) digits[static_cast<std::size_t>('0' + i)] = static_cast<signed char>(i);
  for (int i = 0; i < 6; ++i) {
    digits[static_cast<std::size_t>('a' + i)] = static_cast<signed char>(10 + i);
    digits[static_cast<std::size_t>('A' + i)] = static_cast<signed char>(10 + i);
  }
  for (const char c : {' ', '\t', '\r', '\n'}) digits[static_cast<std::size_t>(c)] = space;
  return digits;
}

constexpr std::array<signed char, 256> digitOf = makeDigits();

}  // namespace

std::optional<QByteArray> bytesOfHex(QByteArrayView text) {
  QByteArray bytes(text.size() / 2, Qt::Uninitialized);
  char* end = bytes.data();
  int high = noDigit;
  for (const char c : text) {
    const int digit = digitOf[static_cast<unsigned char>(c)];
    if (digit == space) continue;
    if (digit == noDigit) return std::nullopt;
    if (high == noDigit) {
      high = digit;
    } else {
      *end++ = static_cast<char>(high << 4 | digit);
      high = noDigit;
    }
  }
  if (high != noDigit) return std::nullopt;
  bytes.truncate(end - bytes.constData());
  return bytes;
}

}  // namespace ado
