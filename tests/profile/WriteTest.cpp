#include <sys/stat.h>

#include <QDir>

#include "profile/ProfileFixture.h"

namespace {

using ProfileWrite = ProfileTest;

TEST_F(ProfileWrite, CreatesTheFileButNoDirectory) {
  ASSERT_TRUE(set(" a ", "\tk ", " v "));
  EXPECT_EQ(content(), "[a]\r\nk= v \r\n") << "blanks around names are lost, those of the value stay";
  EXPECT_FALSE(profile::WritePrivateProfileStringA("a", "k", "v",
                                                   m_directory.filePath(QStringLiteral("missing/a.ini"))));
}

TEST_F(ProfileWrite, KeepsEveryOtherByte) {
  fill("\xef\xbb\xbf; top\n\n[One]\r\n  Key = old\r\n;c\r\n\r\n\r\n[Two]\nk=1\n\xff\x81 junk\n");
  ASSERT_TRUE(set("one", "KEY", "new"));
  ASSERT_TRUE(set("one", "next", "2"));
  ASSERT_TRUE(set("three", "k", "3"));
  EXPECT_EQ(content(),
            "\xef\xbb\xbf; top\n\n[One]\r\n  Key =new\r\n;c\r\nnext=2\r\n\r\n\r\n[Two]\nk=1\n\xff\x81 junk\n"
            "[three]\r\nk=3\r\n");
}

TEST_F(ProfileWrite, EndsAnOpenLastLineFirst) {
  fill("[a]\nk=1");
  ASSERT_TRUE(set("a", "k", "2"));
  EXPECT_EQ(content(), "[a]\nk=2");
  ASSERT_TRUE(set("a", "m", "3"));
  ASSERT_TRUE(set("b", "k", "4"));
  EXPECT_EQ(content(), "[a]\nk=2\r\nm=3\r\n[b]\r\nk=4\r\n");
}

TEST_F(ProfileWrite, AddsToAnEmptySectionAtTheEnd) {
  fill("[a]");
  ASSERT_TRUE(set("A", "k", "v"));
  EXPECT_EQ(content(), "[a]\r\nk=v\r\n");
}

TEST_F(ProfileWrite, RefusesWhatWouldNotReadBack) {
  const QByteArray before("[a]\nk=1\n");
  fill(before);
  for (const QByteArray& bad : {QByteArray("x\ny=z"), QByteArray("x\r"), QByteArray("x\0y", 3)}) {
    EXPECT_FALSE(set("a", "k", bad));
    EXPECT_FALSE(set("a", bad, "v"));
    EXPECT_FALSE(set(bad, "k", "v"));
  }
  EXPECT_FALSE(set("a]b", "k", "v"));
  for (const char* key : {"x=y", ";x", "[x]"}) EXPECT_FALSE(set("a", key, "v")) << key;
  EXPECT_EQ(content(), before);
  EXPECT_TRUE(set("\x81\x5d", "k", "v")) << "a second byte is no bracket";
  EXPECT_EQ(get("\x81\x5d", "k"), "v");
}

TEST_F(ProfileWrite, LeavesAReadOnlyFileAndOtherThingsAlone) {
  const QByteArray before("[a]\nk=1\n");
  fill(before);
  ASSERT_EQ(::chmod(QFile::encodeName(path()).constData(), 0444), 0);
  EXPECT_FALSE(set("a", "k", "2"));
  EXPECT_EQ(content(), before);
  EXPECT_FALSE(profile::WritePrivateProfileStringA("a", "k", "v", m_directory.path()));
  EXPECT_EQ(QDir(m_directory.path()).entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::Hidden).size(),
            1)
      << "nothing half-written is left";
}

}  // namespace
