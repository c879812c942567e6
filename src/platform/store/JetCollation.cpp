#include "store/JetCollation.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace store {

namespace {

/// Characters that fold alike.
struct Range {
  char32_t first;
  char32_t last;
  /// What is added to a character of the range.
  int shift;
  /// 1: every character of the range folds; 2: every second, from the first on.
  int step;
};

/// In ascending order. Stored in every index: never to be changed.
constexpr std::array ranges{
    Range{U'A', U'Z', 0x20, 1},        Range{0x00C0, 0x00D6, 0x20, 1},  // À to Ö
    Range{0x00D8, 0x00DE, 0x20, 1},                                     // Ø to Þ
    Range{0x0100, 0x012E, 1, 2},                                        // Ā to Į
    Range{0x0132, 0x0136, 1, 2},                                        // Ĳ to Ķ
    Range{0x0139, 0x0147, 1, 2},                                        // Ĺ to Ň
    Range{0x014A, 0x0176, 1, 2},                                        // Ŋ to Ŷ
    Range{0x0178, 0x0178, -0x79, 1},                                    // Ÿ
    Range{0x0179, 0x017D, 1, 2},                                        // Ź to Ž
    Range{0x01CD, 0x01DB, 1, 2},                                        // Ǎ to Ǜ
    Range{0x01F8, 0x01F8, 1, 1},                                        // Ǹ
    Range{0x0386, 0x0386, 0x26, 1},                                     // Ά
    Range{0x0388, 0x038A, 0x25, 1},                                     // Έ to Ί
    Range{0x038C, 0x038C, 0x40, 1},                                     // Ό
    Range{0x038E, 0x038F, 0x3F, 1},                                     // Ύ, Ώ
    Range{0x0391, 0x03A1, 0x20, 1},                                     // Α to Ρ
    Range{0x03A3, 0x03AB, 0x20, 1},                                     // Σ to Ϋ
    Range{0x03C2, 0x03C2, 1, 1},                                        // final sigma
    Range{0x0400, 0x040F, 0x50, 1},                                     // Ѐ to Џ
    Range{0x0410, 0x042F, 0x20, 1},                                     // А to Я
    Range{0x2160, 0x216F, 0x10, 1},                                     // Roman numerals
    Range{0x3000, 0x3000, -0x2FE0, 1},                                  // ideographic blank
    Range{0x3041, 0x3096, 0x60, 1},                                     // hiragana to katakana
    Range{0x309D, 0x309E, 0x60, 1},                                     // its iteration marks
    Range{0xFF01, 0xFF20, -0xFEE0, 1},                                  // full-width signs and digits
    Range{0xFF21, 0xFF3A, -0xFEC0, 1},  // full-width A to Z, to small letters at once
    Range{0xFF3B, 0xFF5E, -0xFEE0, 1},  // full-width signs and small letters
};

constexpr char32_t firstHalfWidth = 0xFF61;
constexpr char32_t lastHalfWidth = 0xFF9F;
constexpr char32_t voicedMark = 0xFF9E;
constexpr char32_t semiVoicedMark = 0xFF9F;

/// The full-width characters of U+FF61 to U+FF9F. Stored in every index: never to be changed.
constexpr std::array<char16_t, lastHalfWidth - firstHalfWidth + 1> fullWidth{
    u'。', u'「', u'」', u'、', u'・', u'ヲ', u'ァ', u'ィ', u'ゥ', u'ェ', u'ォ', u'ャ', u'ュ',
    u'ョ', u'ッ', u'ー', u'ア', u'イ', u'ウ', u'エ', u'オ', u'カ', u'キ', u'ク', u'ケ', u'コ',
    u'サ', u'シ', u'ス', u'セ', u'ソ', u'タ', u'チ', u'ツ', u'テ', u'ト', u'ナ', u'ニ', u'ヌ',
    u'ネ', u'ノ', u'ハ', u'ヒ', u'フ', u'ヘ', u'ホ', u'マ', u'ミ', u'ム', u'メ', u'モ', u'ヤ',
    u'ユ', u'ヨ', u'ラ', u'リ', u'ル', u'レ', u'ロ', u'ワ', u'ン', u'゛', u'゜'};

char32_t folded(char32_t c) {
  const auto* range =
      std::lower_bound(ranges.begin(), ranges.end(), c,
                       [](const Range& candidate, char32_t sought) { return candidate.last < sought; });
  if (range == ranges.end() || c < range->first || (c - range->first) % range->step != 0) return c;
  return static_cast<char32_t>(static_cast<int>(c) + range->shift);
}

bool isAscii(char byte) {
  return static_cast<unsigned char>(byte) < 0x80;
}

char foldedAscii(char byte) {
  return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte + ('a' - 'A')) : byte;
}

/// Reads a UTF-8 text folded character by folded character.
class Reader {
 public:
  explicit Reader(std::string_view text) : m_text(text) {}

  [[nodiscard]] bool atEnd() const { return m_at == m_text.size(); }

  char32_t next() {
    const char32_t c = take();
    if (c < firstHalfWidth || c > lastHalfWidth) return folded(c);
    return withMark(fullWidth[c - firstHalfWidth]);
  }

 private:
  [[nodiscard]] unsigned char byte(std::size_t at) const { return static_cast<unsigned char>(m_text[at]); }

  /// The next character; a byte that begins no whole character stands for itself.
  char32_t take() {
    const unsigned char lead = byte(m_at++);
    const int more = lead < 0xC2 ? 0 : lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : lead < 0xF5 ? 3 : 0;
    if (more == 0 || m_at + static_cast<std::size_t>(more) > m_text.size()) return lead;
    char32_t c = lead & (0x3FU >> more);
    for (int i = 0; i < more; ++i) c = (c << 6) | (byte(m_at + static_cast<std::size_t>(i)) & 0x3FU);
    m_at += static_cast<std::size_t>(more);
    return c;
  }

  /// In half width a voiced syllable is two characters.
  char32_t withMark(char32_t kana) {
    if (atEnd()) return kana;
    const std::size_t before = m_at;
    const char32_t mark = take();
    const bool labial = kana >= U'ハ' && kana <= U'ホ';
    const bool voicing = labial || (kana >= U'カ' && kana <= U'ト' && kana != U'ッ');
    if (mark == voicedMark && voicing) return kana + 1;
    if (mark == voicedMark && kana == U'ウ') return U'ヴ';
    if (mark == semiVoicedMark && labial) return kana + 2;
    m_at = before;
    return kana;
  }

  std::string_view m_text;
  std::size_t m_at = 0;
};

}  // namespace

int compareJet(std::string_view a, std::string_view b) {
  // Most texts are numbers and moments, and an index asks for millions of comparisons.
  std::size_t at = 0;
  for (; at < std::min(a.size(), b.size()) && isAscii(a[at]) && isAscii(b[at]); ++at) {
    const char l = foldedAscii(a[at]);
    const char r = foldedAscii(b[at]);
    if (l != r) return l < r ? -1 : 1;
  }
  Reader left(a.substr(at));
  Reader right(b.substr(at));
  while (!left.atEnd() && !right.atEnd()) {
    const char32_t l = left.next();
    const char32_t r = right.next();
    if (l != r) return l < r ? -1 : 1;
  }
  return static_cast<int>(right.atEnd()) - static_cast<int>(left.atEnd());
}

}  // namespace store
