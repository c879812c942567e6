#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "cli/NewHome.h"
#include "cli/Running.h"
#include "runtime/ProgramDirectory.h"

namespace {

const QString init = QStringLiteral("init");

QByteArray contentOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<missing>");
}

void write(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(bytes);
}

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
  EXPECT_EQ(QDir(home).entryList(QDir::Files | QDir::Hidden),
            QStringList({QStringLiteral("attendance.ini"), QStringLiteral("vorlent.dat")}));
}

TEST(Init, NeverOverwrites) {
  for (const QString& name : {QStringLiteral("attendance.ini"), QStringLiteral("vorlent.dat")}) {
    const QTemporaryDir home;
    write(home.filePath(name), "kept");
    const Outcome outcome = runIn(home.path(), {init});
    EXPECT_EQ(outcome.code, 1);
    EXPECT_TRUE(outcome.err.contains(QStringLiteral("“%1”已经存在").arg(home.filePath(name))));
    EXPECT_EQ(contentOf(home.filePath(name)), "kept");
    EXPECT_EQ(contentsOf(home), QStringList(name));
  }
}

TEST(Init, RefusesALinkThatLeadsNowhere) {
  const QTemporaryDir home;
  const QString target = home.filePath(QStringLiteral("elsewhere"));
  ASSERT_TRUE(QFile::link(target, home.filePath(QStringLiteral("vorlent.dat"))));
  EXPECT_EQ(runIn(home.path(), {init}).code, 1);
  EXPECT_FALSE(QFile::exists(target));
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

TEST(Init, TakesTheLongestPathThatComesBackWhole) {
  const QString longest = u'/' + QString(253, u'a');
  EXPECT_EQ(cli::homePathFault(longest), QString());
  EXPECT_NE(cli::homePathFault(longest + u'a'), QString());
  EXPECT_EQ(cli::homePathFault(QStringLiteral("/家 中/a=b#[c]")), QString());
}

TEST(Init, LeavesNothingBehindWhereItCannotWrite) {
  const QTemporaryDir above;
  write(above.filePath(QStringLiteral("file")), "kept");
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
}

TEST(Init, TakesBackWhatItMadeAndNothingElse) {
  const QTemporaryDir above;
  write(above.filePath(QStringLiteral("kept")), "kept");
  {
    runtime::setAppPath(above.filePath(QStringLiteral("a/b")));
    cli::NewHome home(runtime::AppPath());
    home.make();
    EXPECT_TRUE(QFile::exists(above.filePath(QStringLiteral("a/b/vorlent.dat"))));
  }
  runtime::setAppPath({});
  EXPECT_EQ(contentsOf(above), QStringList(QStringLiteral("kept")));
}

}  // namespace
