#include <gtest/gtest.h>

#include "store/JetCollation.h"

namespace {

int compare(const char* a, const char* b) {
  const int forward = store::compareJet(a, b);
  EXPECT_EQ(store::compareJet(b, a), -forward) << a << " and " << b;
  return forward;
}

}  // namespace

TEST(Collation, CaseWidthAndKanaDoNotCount) {
  const std::pair<const char*, const char*> same[] = {
      {"A001", "a001"},
      {"NO.7ｶﾞｱz",
       "no.7ガア"
       "Z"},
      {"ＡＢＣ１２３", "abc123"},
      {"Ünïcode", "üNÏCODE"},
      {"ǍŌ", "ǎō"},
      {"Ÿ", "ÿ"},
      {"ΑΣΏ", "ασώ"},
      {"Жё", "жЁ"},
      {"ｶﾞｷﾞﾊﾟｳﾞ", "ガギパヴ"},
      {"かな", "カナ"},
      {"ｱｯﾀ", "あった"},
      {"Ⅷ", "ⅷ"},
      {"（一）", "(一)"},
      {"　", " "},
      {"", ""},
  };
  for (const auto& [a, b] : same) EXPECT_EQ(compare(a, b), 0) << a << " and " << b;
}

TEST(Collation, AccentsBlanksAndTheRestCount) {
  const std::pair<const char*, const char*> ascending[] = {
      {"e", "é"},
      {"a", "a "},
      {"A9张", "a９张一"},
      {"Z[", "z_"},
      {"", "a"},
      {"カ", "ガ"},
      {"×", "÷"},
      {"张三", "张四"},
      {"ı", "ĸ"},
      {"z", "张"},
      {"A9", "b1"},
      {"a\xFF",
       "a\xFF"
       "b"},
  };
  for (const auto& [a, b] : ascending) EXPECT_LT(compare(a, b), 0) << a << " and " << b;
}

// A damaged text or half a character must still be ordered against everything else, or searches in an index
// would go astray.
TEST(Collation, IsATotalOrder) {
  const std::string_view texts[] = {"",         "a",        "A",  "é", "ｶ",    "ｶﾞ", "\xC3",
                                    "\xE5\xBC", "\xF0\x9F", "ガ", "z", "\xFF", "ﾞ",  "ヴ"};
  for (const auto a : texts) {
    for (const auto b : texts) {
      for (const auto c : texts) {
        if (store::compareJet(a, b) <= 0 && store::compareJet(b, c) <= 0) {
          EXPECT_LE(store::compareJet(a, c), 0) << a << ' ' << b << ' ' << c;
        }
      }
    }
  }
}
