#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDir>
#include <QTemporaryDir>

#include "runtime/ProgramDirectory.h"
#include "runtime/ReplacingFile.h"
#include "runtime/RuntimeError.h"
#include "runtime/SystemWords.h"
#include "support/Files.h"
#include "support/FullDisk.h"
#include "support/Thrown.h"

namespace {

using runtime::ErrorNumber;

class ReplacingFile : public ::testing::Test {
 protected:
  void SetUp() override { support::writeFile(m_path, "old"); }

  [[nodiscard]] QByteArray content() const { return support::contentOf(m_path); }

  /// Nothing that was written aside lies about.
  [[nodiscard]] bool isAlone() const {
    return QDir(m_directory.path()).entryList(QDir::Files | QDir::Hidden) ==
           QStringList(QStringLiteral("kept"));
  }

  void allow(mode_t mode, const QString& path) const {
    ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), mode), 0);
  }

  QTemporaryDir m_directory;
  QString m_path = m_directory.filePath(QStringLiteral("kept"));
};

TEST_F(ReplacingFile, ReplacesOnlyWhenCommitted) {
  {
    runtime::ReplacingFile file(m_path);
    file.write("given up");
    EXPECT_EQ(content(), "old");
  }
  EXPECT_EQ(content(), "old");
  EXPECT_TRUE(isAlone());
  runtime::replaceFile(m_path, "new");
  EXPECT_EQ(content(), "new");
  EXPECT_TRUE(isAlone());
}

TEST_F(ReplacingFile, RefusesAReadOnlyTargetForEveryUser) {
  allow(0444, m_path);
  const auto error = support::thrown([this] { runtime::replaceFile(m_path, "new"); });
  EXPECT_EQ(error.number(), static_cast<int>(ErrorNumber::FileAccess));
  EXPECT_TRUE(error.description().contains(m_path));
  EXPECT_EQ(content(), "old");
}

TEST_F(ReplacingFile, RefusesAReadOnlyDirectoryAlsoBehindALink) {
  const QTemporaryDir elsewhere;
  const QString link = elsewhere.filePath(QStringLiteral("link"));
  ASSERT_TRUE(QFile::link(m_path, link));
  allow(0555, m_directory.path());
  for (const QString& path : {m_path, m_directory.filePath(QStringLiteral("new")), link}) {
    EXPECT_EQ(support::thrownNumber([&] { runtime::replaceFile(path, "new"); }), ErrorNumber::FileAccess);
  }
  allow(0755, m_directory.path());
  EXPECT_EQ(content(), "old");
  runtime::replaceFile(link, "new");
  EXPECT_EQ(content(), "new") << "the target is written, the link stays";
  EXPECT_TRUE(QFileInfo(link).isSymLink());
}

TEST_F(ReplacingFile, KeepsTheOldFileOnAFullDisk) {
  const support::FullDisk disk(1000);
  EXPECT_EQ(support::thrownNumber([this] { runtime::replaceFile(m_path, QByteArray(100000, 'x')); }),
            ErrorNumber::FileIo);
  EXPECT_EQ(content(), "old");
  EXPECT_TRUE(isAlone());
}

TEST_F(ReplacingFile, LeavesDirectoriesAndDevicesInPlace) {
  const QString pipe = m_directory.filePath(QStringLiteral("pipe"));
  ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
  for (const QString& path : {pipe, m_directory.path(), m_path + QStringLiteral("/inside")}) {
    const auto error = support::thrown([&] { runtime::replaceFile(path, "new"); });
    EXPECT_EQ(error.number(), static_cast<int>(ErrorNumber::FileAccess));
    EXPECT_TRUE(error.description().contains(path)) << error.what();
  }
  struct stat facts {};
  ASSERT_EQ(::stat(QFile::encodeName(pipe).constData(), &facts), 0);
  EXPECT_TRUE(S_ISFIFO(facts.st_mode));
  EXPECT_EQ(content(), "old");
}

TEST(ProgramDirectory, IsChosenByArgumentThenEnvironmentThenExecutable) {
  qputenv("ATTENDANCE_HOME", "/from/environment/");
  runtime::chooseAppPath(QStringLiteral("/from/../argument/"));
  EXPECT_EQ(runtime::appFile(QStringLiteral("x")), QStringLiteral("/argument/x"));
  runtime::chooseAppPath({});
  EXPECT_EQ(runtime::AppPath(), QStringLiteral("/from/environment"));
  qunsetenv("ATTENDANCE_HOME");
  runtime::chooseAppPath({});
  EXPECT_EQ(runtime::AppPath(), QString::fromUtf8(PROGRAM_DIR));
}

TEST(ProgramDirectory, PlainNamesStayInTheirDirectory) {
  const QString nul = QStringLiteral("a") + QChar(u'\0');
  for (const QString& name : {QString(), QStringLiteral("."), QStringLiteral(".."), QStringLiteral("../x"),
                              QStringLiteral("a/b"), QStringLiteral("a\\b"), nul, QString(84, u'工')}) {
    EXPECT_FALSE(runtime::isPlainFileName(name)) << name.toStdString();
  }
  for (const QString& name :
       {QStringLiteral("A001"), QStringLiteral("..x"), QStringLiteral("张 三"), QString(250, u'x')}) {
    EXPECT_TRUE(runtime::isPlainFileName(name)) << name.toStdString();
  }
}

}  // namespace

TEST(SystemWords, FailuresOfFilesAreToldInTheUsersLanguage) {
  const auto words = [](const QString& path) {
    QFile file(path);
    EXPECT_FALSE(file.open(QIODevice::ReadOnly));
    return runtime::systemWords(file.errorString());
  };
  EXPECT_EQ(words(QStringLiteral("/nowhere/at/all")), QStringLiteral("文件或目录不存在"));
  EXPECT_EQ(words(QStringLiteral("/dev/null/below")), QStringLiteral("路径中有一段不是目录"));
  EXPECT_EQ(words(QString(300, u'x')), QStringLiteral("文件名太长"));
  EXPECT_EQ(runtime::systemWords(QStringLiteral("Unknown")), QStringLiteral("Unknown"));
}
