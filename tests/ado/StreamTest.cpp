#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "ado/AdoError.h"
#include "ado/Stream.h"
#include "support/Files.h"
#include "support/FullDisk.h"
#include "support/Thrown.h"

namespace {

using support::contentOf;

using support::contentOf;

class AdoStream : public ::testing::Test {
 protected:
  AdoStream() { stream.Open(); }

  [[nodiscard]] QString file(const char* name) const { return directory.filePath(QString::fromUtf8(name)); }

  QTemporaryDir directory;
  ado::Stream stream;
};

}  // namespace

TEST_F(AdoStream, CarriesBytesToAFileAndBack) {
  stream.Write(QByteArray("\0ab", 3));
  stream.Write(QByteArray("cd"));
  stream.SaveToFile(file("a.jpg"), ado::SaveOptions::CreateOverWrite);
  EXPECT_EQ(contentOf(file("a.jpg")), QByteArray("\0abcd", 5));
  ado::Stream other;
  other.Open();
  other.LoadFromFile(file("a.jpg"));
  EXPECT_EQ(other.Size(), 5);
  EXPECT_EQ(other.Read(2), QByteArray("\0a", 2));
  EXPECT_EQ(other.Read(), QByteArray("bcd"));
  EXPECT_EQ(other.Read(), QByteArray());
}

TEST_F(AdoStream, OverwritesOnlyWhenTold) {
  stream.Write(QByteArray("long content"));
  stream.SaveToFile(file("a.jpg"));
  EXPECT_THROW(stream.SaveToFile(file("a.jpg")), runtime::RuntimeError);
  ado::Stream shorter;
  shorter.Open();
  shorter.Write(QByteArray("x"));
  shorter.SaveToFile(file("a.jpg"), ado::SaveOptions::CreateOverWrite);
  EXPECT_EQ(contentOf(file("a.jpg")), QByteArray("x"));
}

TEST_F(AdoStream, AReadOnlyTargetStaysAsItIs) {
  stream.Write(QByteArray("new"));
  stream.SaveToFile(file("a.jpg"));
  QFile::setPermissions(file("a.jpg"), QFileDevice::ReadOwner);
  stream.Write(QByteArray("er"));
  EXPECT_THROW(stream.SaveToFile(file("a.jpg"), ado::SaveOptions::CreateOverWrite), runtime::RuntimeError);
  QFile::setPermissions(directory.path(), QFileDevice::ReadOwner | QFileDevice::ExeOwner);
  EXPECT_THROW(stream.SaveToFile(file("b.jpg")), runtime::RuntimeError);
  QFile::setPermissions(directory.path(),
                        QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
  EXPECT_EQ(contentOf(file("a.jpg")), QByteArray("new"));
  EXPECT_FALSE(QFile::exists(file("b.jpg")));
}

TEST_F(AdoStream, AFileThatCannotBeWrittenInFullIsRemoved) {
  stream.Write(QByteArray(100000, 'x'));
  const support::FullDisk disk(50000);
  const auto error = support::thrown([this] { stream.SaveToFile(file("a.jpg")); });
  EXPECT_TRUE(error.description().contains(file("a.jpg"))) << error.what();
  EXPECT_FALSE(QFile::exists(file("a.jpg")));
}
