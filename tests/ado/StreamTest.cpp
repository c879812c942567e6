#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <QFile>
#include <QTemporaryDir>

#include "ado/AdoError.h"
#include "ado/Stream.h"

namespace {

class AdoStream : public ::testing::Test {
 protected:
  AdoStream() { stream.Open(); }

  [[nodiscard]] QString file(const char* name) const { return directory.filePath(QString::fromUtf8(name)); }
  static QByteArray read(const QString& name) {
    QFile source(name);
    return source.open(QIODevice::ReadOnly) ? source.readAll() : QByteArray("<none>");
  }

  QTemporaryDir directory;
  ado::Stream stream;
};

}  // namespace

TEST_F(AdoStream, CarriesBytesToAFileAndBack) {
  stream.Write(QByteArray("\0ab", 3));
  stream.Write(QByteArray("cd"));
  stream.SaveToFile(file("a.jpg"), ado::SaveOptions::CreateOverWrite);
  EXPECT_EQ(read(file("a.jpg")), QByteArray("\0abcd", 5));
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
  EXPECT_EQ(read(file("a.jpg")), QByteArray("x"));
}

TEST_F(AdoStream, Failures) {
  EXPECT_THROW(stream.Write(QVariant()), runtime::RuntimeError);
  EXPECT_THROW(stream.Write(QStringLiteral("text")), runtime::RuntimeError);
  EXPECT_THROW(stream.LoadFromFile(file("missing")), runtime::RuntimeError);
  EXPECT_THROW(stream.LoadFromFile(directory.path()), runtime::RuntimeError);
  EXPECT_THROW(stream.SaveToFile(file("none/a.jpg")), runtime::RuntimeError);
  EXPECT_THROW(stream.SaveToFile(directory.path(), ado::SaveOptions::CreateOverWrite), runtime::RuntimeError);
  stream.Close();
  EXPECT_THROW(stream.Write(QByteArray("x")), ado::AdoError);
  EXPECT_THROW(std::ignore = stream.Read(), ado::AdoError);
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
  EXPECT_EQ(read(file("a.jpg")), QByteArray("new"));
  EXPECT_FALSE(QFile::exists(file("b.jpg")));
}

// A limit on the size of files stops a write in its middle, as a full disk does.
TEST_F(AdoStream, AFileThatCannotBeWrittenInFullIsRemoved) {
  stream.Write(QByteArray(100000, 'x'));
  rlimit before{};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
  const rlimit small{50000, before.rlim_max};
  const auto signalBefore = std::signal(SIGXFSZ, SIG_IGN);
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
  QString words;
  try {
    stream.SaveToFile(file("a.jpg"), ado::SaveOptions::CreateOverWrite);
  } catch (const runtime::RuntimeError& error) {
    words = error.description();
  }
  setrlimit(RLIMIT_FSIZE, &before);
  std::ignore = std::signal(SIGXFSZ, signalBefore);
  EXPECT_TRUE(words.contains(file("a.jpg"))) << words.toStdString();
  EXPECT_FALSE(QFile::exists(file("a.jpg")));
}
