#include "profile/ProfileFixture.h"

namespace {

using ProfileRead = ProfileTest;

TEST_F(ProfileRead, FindsNamesWhateverTheirCaseAndBlanks) {
  fill("[ Data ]\r\n\t PATH \v=\t C:\\a b \v\r\n  [Second]\r\nPath=2\r\n");
  EXPECT_EQ(get("DATA", "path"), "C:\\a b");
  EXPECT_EQ(get(" data", "Path "), "C:\\a b");
  EXPECT_EQ(get("second", "PATH"), "2");
}

TEST_F(ProfileRead, FirstSectionAndFirstKeyWin) {
  fill("before=0\n[a]\nk=1\nk=2\n[b]\nonly=3\n[A]\nk=4\nlater=5\n");
  EXPECT_EQ(get("a", "k"), "1");
  EXPECT_EQ(get("a", "later"), "<default>");
  EXPECT_EQ(get("b", "before"), "<default>");
}

TEST_F(ProfileRead, TakesCommentsAndBrokenLinesForWhatTheyAre) {
  fill("[a]extra=no\n;k=comment\n#k=1\nloner\n[open\nk=v ; kept # too = all\nempty=\n[b]c]\nk=9\n");
  EXPECT_EQ(get("a", "k"), "v ; kept # too = all");
  EXPECT_EQ(get("a", "#k"), "1");
  EXPECT_EQ(get("a", "loner"), "<default>");
  EXPECT_EQ(get("a", "empty"), "");
  EXPECT_EQ(get("b", "k"), "9");
}

TEST_F(ProfileRead, SurvivesForeignBytes) {
  const QByteArray bytes("\xef\xbb\xbf[a]\nk=hidden\n[b]\nk=v\0tail\n\0\n[c]\nx\0=1\nk=2\n", 44);
  fill(bytes);
  EXPECT_EQ(get("a", "k"), "<default>") << "a byte order mark breaks the first line";
  EXPECT_EQ(get("b", "k"), "v") << "a value ends at a NUL";
  EXPECT_EQ(get("c", "k"), "2");
}

TEST_F(ProfileRead, DoesNotTakeSecondBytesForAscii) {
  // 乚 is 81 5D, 丄 81 41, 乤 81 61: a bracket, a capital and a small letter as second bytes.
  fill("[\x81\x5d x]\n\x81\x41=capital\n\x81\x61=small\n");
  EXPECT_EQ(get("\x81\x5d X", "\x81\x61"), "small");
  EXPECT_EQ(get("\x81\x5d X", "\x81\x41"), "capital");
  EXPECT_EQ(get("\x81", "\x81\x41"), "<default>");
}

TEST_F(ProfileRead, CutsAtTheBuffersSize) {
  fill("[a]\nk=" + QByteArray(300, 'x') + "\n");
  EXPECT_EQ(get("a", "k"), std::string(254, 'x'));
  EXPECT_EQ(get("a", "k", 4), "xxx");
  EXPECT_EQ(get("a", "missing", 4), "<de");
  EXPECT_EQ(get("a", "k", 1), "");
  char untouched = '!';
  EXPECT_EQ(profile::GetPrivateProfileStringA("a", "k", "", &untouched, 0, path()), 0);
  EXPECT_EQ(untouched, '!');
}

}  // namespace
