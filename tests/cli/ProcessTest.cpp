#include <gtest/gtest.h>

#include <QProcess>
#include <QTemporaryDir>

#include "cli/Running.h"
#include "foundation/HelpFiles.h"

namespace {

/// Runs the real program in an environment as bare as a service's.
Outcome runProgram(const QStringList& arguments) {
  QProcess process;
  QProcessEnvironment environment;
  environment.insert(QStringLiteral("PATH"), qEnvironmentVariable("PATH"));
  process.setProcessEnvironment(environment);
  process.start(QStringLiteral(PROGRAM_DIR "/attendancectl"), arguments);
  EXPECT_TRUE(process.waitForFinished(60'000));
  return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
          QString::fromUtf8(process.readAllStandardError())};
}

TEST(Process, WorksWithoutDisplayAndLocale) {
  const QTemporaryDir above;
  const QString home = above.filePath(QStringLiteral("家"));
  const QStringList named{QStringLiteral("--home"), home};
  const Outcome demo = runProgram(
      QStringList{QStringLiteral("demo"), QStringLiteral("--employees"), QStringLiteral("5")} + named);
  EXPECT_EQ(demo.code, 0);
  const QString missingHelp = HelpFiles().missing();
  EXPECT_EQ(demo.err, missingHelp.isEmpty() ? QString() : missingHelp + u'\n');
  const QString pdf = above.filePath(QStringLiteral("卡.pdf"));
  const Outcome cards = runProgram(
      named + QStringList{QStringLiteral("cards"), QStringLiteral("--all"), QStringLiteral("--out"), pdf});
  EXPECT_EQ(cards.code, 0);
  EXPECT_EQ(cards.err, QString());
  EXPECT_EQ(cards.out, QStringLiteral("已写入 5 张签到卡：%1\n").arg(pdf));
  EXPECT_GT(QFileInfo(pdf).size(), 10'000);
  EXPECT_EQ(runProgram({QStringLiteral("--home"), pdf, QStringLiteral("check")}).code, 1);
  const Outcome wrong = runProgram({QStringLiteral("列表")});
  EXPECT_EQ(wrong.code, 2);
  EXPECT_TRUE(wrong.err.startsWith(QStringLiteral("不认识的参数：列表"))) << wrong.err.toStdString();
}

}  // namespace
