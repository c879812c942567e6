#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "cli/Running.h"
#include "foundation/HelpFiles.h"
#include "support/Files.h"

namespace {

const QString init = QStringLiteral("init");
const QString helpFile = QStringLiteral("HELP.CHM");

/// Everything below the directory, hidden files too.
QStringList contentsOf(const QTemporaryDir& directory) {
  return QDir(directory.path())
      .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

TEST(Init, MakesAHomeThatWorks) {
  const QTemporaryDir above;
  const QString home = above.filePath(QStringLiteral("一级/二级"));
  const Outcome made = runIn(home, {init});
  EXPECT_EQ(made.code, 0) << made.err.toStdString();
  EXPECT_EQ(made.out, QStringLiteral("已建立：%1\n").arg(home));
  EXPECT_EQ(runIn(home, {QStringLiteral("list"), QStringLiteral("employees")}).out,
            QStringLiteral("编号\t姓名\t部门\t条码\t录入日期\n"));
  QStringList files{QStringLiteral("attendance.ini"), QStringLiteral("vorlent.dat")};
  if (HelpFiles().names().contains(helpFile)) files.insert(1, helpFile);
  EXPECT_EQ(QDir(home).entryList(QDir::Files | QDir::Hidden), files);
}

TEST(Init, PutsTheHelpInAndKeepsWhatBearsItsName) {
  const QTemporaryDir home;
  support::writeFile(home.filePath(helpFile), "kept");
  const Outcome made = runIn(home.path(), {init});
  ASSERT_EQ(made.code, 0) << made.err.toStdString();
  EXPECT_EQ(support::contentOf(home.filePath(helpFile)), "kept");
  const HelpFiles help;
  ASSERT_TRUE(help.hasPages());
  for (const QString& name : help.names()) {
    if (name == helpFile) continue;
    EXPECT_EQ(support::contentOf(home.filePath(name)),
              support::contentOf(QStringLiteral(PROGRAM_DIR "/") + name))
        << name.toStdString();
  }
}

TEST(Init, NeverOverwrites) {
  for (const QString& name : {QStringLiteral("attendance.ini"), QStringLiteral("vorlent.dat")}) {
    const QTemporaryDir home;
    support::writeFile(home.filePath(name), "kept");
    const Outcome outcome = runIn(home.path(), {init});
    EXPECT_EQ(outcome.code, 1);
    EXPECT_TRUE(outcome.err.contains(QStringLiteral("“%1”已经存在").arg(home.filePath(name))));
    EXPECT_EQ(support::contentOf(home.filePath(name)), "kept");
    EXPECT_EQ(contentsOf(home), QStringList(name));
  }
}

TEST(Init, RefusesPathsThatTheSettingsCannotHold) {
  const QTemporaryDir above;
  const QString names[] = {QStringLiteral("a;b"),        QStringLiteral("a\\b"), QStringLiteral("a\"b"),
                           QStringLiteral("a'b"),        QStringLiteral("a\nb"), QStringLiteral("a "),
                           QString::fromUtf8("a\u2003"), QString::fromUtf8("😀"), QString(130, QChar(0x4e2d))};
  for (const QString& name : names) {
    const Outcome outcome = runIn(above.filePath(name), {init});
    EXPECT_EQ(outcome.code, 1) << name.toStdString();
    EXPECT_TRUE(outcome.err.contains(QStringLiteral("路径"))) << outcome.err.toStdString();
    EXPECT_EQ(contentsOf(above), QStringList()) << name.toStdString();
  }
}

TEST(Init, LeavesNothingBehindWhereItCannotWrite) {
  const QTemporaryDir above;
  support::writeFile(above.filePath(QStringLiteral("file")), "kept");
  const Outcome inFile = runIn(above.filePath(QStringLiteral("file/home")), {init});
  EXPECT_EQ(inFile.code, 1);
  EXPECT_TRUE(inFile.err.contains(QStringLiteral("不是目录"))) << inFile.err.toStdString();

  const QString locked = above.filePath(QStringLiteral("locked"));
  ASSERT_TRUE(QDir().mkdir(locked));
  QFile::setPermissions(locked, QFile::ReadOwner | QFile::ExeOwner);
  const Outcome readOnly = runIn(locked + QStringLiteral("/home"), {init});
  EXPECT_EQ(readOnly.code, 1);
  EXPECT_TRUE(readOnly.err.contains(QStringLiteral("只读"))) << readOnly.err.toStdString();
  EXPECT_TRUE(QDir(locked).isEmpty());
  QFile::setPermissions(locked, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);

  // The help comes last: where it cannot be written, the finished files are taken back too.
  const QString barred = above.filePath(QStringLiteral("barred"));
  ASSERT_TRUE(QDir().mkdir(barred));
  support::writeFile(barred + QStringLiteral("/help"), "kept");
  const Outcome halfway = runIn(barred, {init});
  EXPECT_EQ(halfway.code, 1);
  EXPECT_TRUE(halfway.err.contains(QStringLiteral("help/"))) << halfway.err.toStdString();
  EXPECT_EQ(QDir(barred).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
            QStringList(QStringLiteral("help")));
}

}  // namespace
