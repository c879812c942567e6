#include "persisted/HexText.h"

#include <array>

namespace persisted {

namespace {

constexpr int noDigit = -1;
constexpr int space = -2;

using Digits = std::array<int, 256>;

constexpr int& digitAt(Digits& digits, char c) {
  return digits[static_cast<unsigned char>(c)];
}

constexpr Digits makeDigits() {
  Digits digits{};
  digits.fill(noDigit);
  for (char c = '0'; c <= '9'; ++c) digitAt(digits, c) = c - '0';
  for (char c = 'a'; c <= 'f'; ++c) digitAt(digits, c) = c - 'a' + 10;
  for (char c = 'A'; c <= 'F'; ++c) digitAt(digits, c) = c - 'A' + 10;
  for (const char c : {' ', '\t', '\r', '\n'}) digitAt(digits, c) = space;
  return digits;
}

constexpr Digits digitOf = makeDigits();

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

}  // namespace persisted
