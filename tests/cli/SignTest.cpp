#include <gtest/gtest.h>

#include <QProcess>

#include "cli/Running.h"
#include "support/FixedClock.h"
#include "support/TestHome.h"

namespace {

/// Employees A1 and A2 with the barcodes 111111111111111 and 222222222222222.
class Sign : public testing::Test {
 protected:
  Sign() {
    home.execute(QStringLiteral("INSERT INTO Dept(DNAME) VALUES('教务处')"));
    home.insertEmployee(QStringLiteral("A1"), QStringLiteral("张三"), 1, support::TestHome::tinyJpeg(), one);
    home.insertEmployee(QStringLiteral("A2"), QStringLiteral("李四"), 1, {}, two);
  }

  [[nodiscard]] Outcome command(const QStringList& arguments) const { return runIn(home.path(), arguments); }
  [[nodiscard]] std::unique_ptr<QProcess> start(const QStringList& arguments) const {
    auto process = std::make_unique<QProcess>();
    process->start(QStringLiteral(PROGRAM_DIR "/attendancectl"),
                   QStringList{QStringLiteral("--home"), home.path()} + arguments);
    return process;
  }
  static QString outputOf(QProcess& process) {
    EXPECT_TRUE(process.waitForFinished(60'000));
    return QString::fromUtf8(process.readAllStandardOutput());
  }

  const QString sign = QStringLiteral("sign");
  const QString one = QStringLiteral("111111111111111");
  const QString two = QStringLiteral("222222222222222");
  support::TestHome home;
};

TEST_F(Sign, PrintsALineACodeAndTodayListsThem) {
  support::FixedClock clock(QDateTime(QDate(2026, 11, 16), QTime(8, 5, 30)));
  const Outcome in = command({sign, one, two, one});
  EXPECT_EQ(in.code, 0);
  EXPECT_EQ(in.out, QStringLiteral("111111111111111\t1\t签到成功\tA1\t张三\n"
                                   "222222222222222\t1\t签到成功\tA2\t李四\n"
                                   "111111111111111\t4\t请勿重复刷卡（还需 60 秒）\tA1\t张三\n"));
  EXPECT_TRUE(in.err.startsWith(two)) << "the missing photo is told: " << in.err.toStdString();
  clock.set(QDateTime(QDate(2026, 11, 16), QTime(17, 0)));
  const Outcome out = command({sign, one, one});
  EXPECT_EQ(out.code, 0);
  EXPECT_EQ(out.err, QString());
  EXPECT_EQ(out.out, QStringLiteral("111111111111111\t2\t签退成功\tA1\t张三\n"
                                    "111111111111111\t3\t今日已签退，不再记录\tA1\t张三\n"));
  const Outcome today = command({QStringLiteral("today")});
  EXPECT_EQ(today.code, 0);
  EXPECT_EQ(today.out, QStringLiteral("编号\t姓名\t签到\t签退\nA1\t张三\t08:05\t17:00\nA2\t李四\t08:05\t\n"));
}

TEST_F(Sign, AnUnknownCodeFailsTheWholeButStopsNothing) {
  const support::FixedClock clock(QDateTime(QDate(2026, 11, 16), QTime(8, 0)));
  const Outcome outcome = command({sign, QStringLiteral("x' OR '1'='1"), QStringLiteral("a\tb"), one});
  EXPECT_EQ(outcome.code, 1);
  EXPECT_EQ(outcome.out, QStringLiteral("x' OR '1'='1\t0\t未登记的卡号：x' OR '1'='1\t\t\n"
                                        "a b\t0\t未登记的卡号：a b\t\t\n"
                                        "111111111111111\t1\t签到成功\tA1\t张三\n"));
  EXPECT_EQ(command({sign}).code, 2);
  EXPECT_EQ(command({sign, QStringLiteral("-"), one}).code, 2);
}

TEST_F(Sign, StandardInputIsAnsweredLineByLine) {
  const auto process = start({sign, QStringLiteral("-")});
  process->write(one.toUtf8() + "\r\n\n");
  ASSERT_TRUE(process->waitForReadyRead(30'000)) << "the first code waits for the second";
  EXPECT_TRUE(process->readLine().startsWith("111111111111111\t1\t"));
  process->write("nobody");
  process->closeWriteChannel();
  EXPECT_EQ(outputOf(*process), QStringLiteral("nobody\t0\t未登记的卡号：nobody\t\t\n"));
  EXPECT_EQ(process->exitCode(), 1);
}

}  // namespace
