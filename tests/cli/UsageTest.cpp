#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "cli/Commands.h"
#include "cli/Running.h"
#include "support/TestHome.h"

namespace {

struct WrongUsage {
  const char* arguments;
  const char* told;
};

TEST(Usage, WrongArgumentsAreToldAndChangeNothing) {
  const WrongUsage cases[] = {
      {"", "缺少命令"},
      {"fly", "不认识的参数：fly"},
      {"list", "缺少 WHAT"},
      {"list pupils", "“pupils”不是 employees 或 departments"},
      {"list employees --fast", "不认识的参数：--fast"},
      {"remove", "缺少 NUMBER"},
      {"backup", "缺少 --out"},
      {"cards --number --out a.pdf", "选项 --number 缺少值"},
      {"backup --out a --out b", "选项 --out 缺少值，或给出了不止一个值"},
      {"cards --out a.pdf", "请给出 --all 或 --number 其中之一"},
      {"cards --all --number 1 --out a.pdf", "请给出 --all 或 --number 其中之一"},
      {"cards --all", "缺少 --out"},
      {"cards --all --start 2 --out a.pdf", "要与 --sheet 一起使用"},
      {"cards --all --cut-marks --out a.pdf", "要与 --sheet 一起使用"},
      {"cards --all --sheet --start 9 --out a.pdf", "不是 1 到 8 之间的整数"},
      {"cards --all --sheet --offset 1.5 --out a.pdf", "“1.5”不是 1.5,-0.3 这样的偏移"},
      {"cards --all --sheet --offset 0,-10.1 --out a.pdf", "“0,-10.1”不是 1.5,-0.3 这样的偏移"},
      {"month --out a.pdf", "缺少 MONTH"},
      {"month 2026-10", "缺少 --out"},
      {"month 2026-10 --out a.doc", "“a.doc”的扩展名不是 pdf、xlsx 或 csv"},
      {"month 2026-00 --out a.pdf", "“2026-00”不是 2026-11 这样的月份"},
      {"month 2026-13 --out a.pdf", "“2026-13”不是 2026-11 这样的月份"},
      {"month 0000-01 --out a.pdf", "“0000-01”不是 2026-11 这样的月份"},
      {"month 99999-01 --out a.pdf", "“99999-01”不是 2026-11 这样的月份"},
      {"demo --employees many", "选项 --employees 的值“many”不是 0 到 100000 之间的整数"},
      {"demo --employees 100001", "不是 0 到 100000 之间的整数"},
      {"demo --photo-kb 0", "不是 1 到 2048 之间的整数"},
      {"demo --month 2026-13", "“2026-13”不是 2026-11 这样的月份"},
  };
  const QTemporaryDir home;
  for (const WrongUsage& wrong : cases) {
    const QStringList arguments = QString::fromUtf8(wrong.arguments).split(u' ', Qt::SkipEmptyParts);
    const Outcome outcome = runIn(home.path(), arguments);
    EXPECT_EQ(outcome.code, 2) << wrong.arguments;
    EXPECT_TRUE(outcome.err.contains(QString::fromUtf8(wrong.told))) << outcome.err.toStdString();
    EXPECT_EQ(outcome.out, QString()) << wrong.arguments;
  }
  EXPECT_TRUE(QDir(home.path()).isEmpty());
}

TEST(Usage, HomeMustBeNamedWhereOneIsMade) {
  qunsetenv("ATTENDANCE_HOME");
  for (const QString& command : {QStringLiteral("init"), QStringLiteral("demo")}) {
    const Outcome outcome = run({command});
    EXPECT_EQ(outcome.code, 2);
    EXPECT_TRUE(outcome.err.contains(QStringLiteral("请用 --home"))) << outcome.err.toStdString();
  }
}

TEST(Usage, HomeIsTakenBeforeOrBehindTheCommandAndFromTheEnvironment) {
  const support::TestHome home;
  const QString headings = QStringLiteral("部门号\t名称\t人数\n");
  const QStringList list{QStringLiteral("list"), QStringLiteral("departments")};
  const QStringList named{QStringLiteral("--home"), home.path()};
  EXPECT_EQ(run(named + list).out, headings);
  EXPECT_EQ(run(list + named).out, headings);
  EXPECT_EQ(run(list + QStringList{QStringLiteral("--home=") + home.path()}).out, headings);
  qputenv("ATTENDANCE_HOME", home.path().toUtf8());
  EXPECT_EQ(run(list).out, headings);
  qunsetenv("ATTENDANCE_HOME");
}

TEST(Usage, HelpTellsOfEveryCommand) {
  const Outcome help = run({QStringLiteral("--help")});
  EXPECT_EQ(help.code, 0);
  for (const auto& command : cli::makeCommands()) {
    EXPECT_TRUE(help.out.contains(command->summary())) << help.out.toStdString();
  }
}

}  // namespace
