#include "cli/TodayCommand.h"

#include "attendance/SignIn.h"
#include "attendance/clsPresenceSet.h"
#include "cli/Cell.h"
#include "cli/Database.h"
#include "foundation/GlobalDefine.h"

namespace cli {

QString TodayCommand::summary() const {
  return QStringLiteral("列出今日的签到记录");
}

int TodayCommand::run(const Streams& streams) {
  const auto connection = openDatabase();
  SignIn().waitOutMidnight();
  clsPresenceSet records;
  if (!records.LoadToday()) {
    streams.err << QStringLiteral("未能读取今日的签到记录：%1\n").arg(records.lastFailure());
    return Failed;
  }
  streams.out << QStringLiteral("编号\t姓名\t签到\t签退\n");
  for (const auto& record : records) {
    streams.out << cell(record->ENUMBER()) << '\t' << cell(record->ENAME()) << '\t'
                << FormatShortTime(record->enterTime()) << '\t' << FormatShortTime(record->exitTime())
                << '\n';
  }
  return Done;
}

}  // namespace cli
