#include "cli/DemoCommand.h"

#include "ado/Recordset.h"
#include "attendance/AttendanceMonth.h"
#include "cli/Database.h"
#include "cli/DemoPeople.h"
#include "cli/NewHome.h"
#include "cli/Portrait.h"
#include "foundation/SqlText.h"
#include "foundation/clsSchoolArea.h"
#include "printing/clsTextDspStyle.h"
#include "runtime/Clock.h"
#include "runtime/ProgramDirectory.h"
#include "runtime/RuntimeError.h"

namespace cli {

namespace {

constexpr int mostEmployees = 100'000;
constexpr int mostPhotoKb = 2'048;

void require(bool written) {
  if (!written) throw runtime::RuntimeError(runtime::ErrorNumber::FileIo, QStringLiteral("无法写入设置文件"));
}

/// What stands on every card.
void writeCardTexts() {
  const QString unit = QStringLiteral("青禾实验学校");
  clsSchoolArea area;
  area.setSNAME(unit);
  require(area.SaveInfo());
  clsTextDspStyle style;
  style.InitConfigGroupName(QStringLiteral("UNIT"));
  require(style.SetName(unit) && style.SetSize(QStringLiteral("22")) && style.SetColor(0x8b0000));
  style.InitConfigGroupName(QStringLiteral("MEMO"));
  require(style.SetName(QStringLiteral("请妥善保管")) && style.SetSize(QStringLiteral("8.5")));
}

void insertDepartments(ado::Connection& connection) {
  for (const QString& name : demoDepartments()) {
    std::ignore =
        connection.Execute(QStringLiteral("INSERT INTO Dept(DNAME) VALUES(%1)").arg(sql::quoted(name)));
  }
}

void insertEmployees(const std::shared_ptr<ado::Connection>& connection,
                     const std::vector<DemoPerson>& people, const PortraitStudio& studio) {
  ado::Recordset rows;
  rows.Open(QStringLiteral("SELECT * FROM Employee WHERE 1 = 0"), connection, ado::CursorType::Keyset,
            ado::LockType::Optimistic);
  for (const DemoPerson& person : people) {
    rows.AddNew();
    rows.Fields(QStringLiteral("ENUMBER")).setValue(person.number);
    rows.Fields(QStringLiteral("ENAME")).setValue(person.name);
    rows.Fields(QStringLiteral("DID")).setValue(person.department);
    rows.Fields(QStringLiteral("EBARCODE")).setValue(person.barcode);
    rows.Fields(QStringLiteral("HEADIMG")).setValue(studio.portrait(person.face));
    rows.Fields(QStringLiteral("ENTERDATE")).setValue(person.entered.startOfDay());
    rows.Update();
  }
  rows.Close();
}

}  // namespace

QString DemoCommand::summary() const {
  return QStringLiteral("建立演示用的程序目录：部门、员工、照片和考勤记录");
}

std::vector<Option> DemoCommand::options() {
  return {{.name = QStringLiteral("--employees"),
           .valueName = QStringLiteral("N"),
           .help = QStringLiteral("员工人数（默认 120）"),
           .target = &m_employees,
           .least = 0,
           .most = mostEmployees},
          {.name = QStringLiteral("--photo-kb"),
           .valueName = QStringLiteral("K"),
           .help = QStringLiteral("每张照片约 K KB"),
           .target = &m_photoKb,
           .least = 1,
           .most = mostPhotoKb},
          {.name = QStringLiteral("--month"),
           .valueName = QStringLiteral("YYYY-MM"),
           .help = QStringLiteral("考勤记录的月份（默认上月和本月，到昨天为止）"),
           .target = &m_month}};
}

QString DemoCommand::usageFault() const {
  if (m_month.isEmpty() || AttendanceMonth::parse(m_month)) return {};
  return QStringLiteral("“%1”不是 2026-11 这样的月份").arg(m_month);
}

std::vector<QDate> DemoCommand::days() const {
  if (const auto month = AttendanceMonth::parse(m_month)) {
    return workingDays(month->firstDay(), month->lastDay());
  }
  const QDate today = runtime::now().date();
  const QDate first(today.year(), today.month(), 1);
  return workingDays(first.addMonths(-1), today.addDays(-1));
}

int DemoCommand::run(const Streams& streams) {
  NewHome home(runtime::AppPath());
  home.make();
  writeCardTexts();

  const std::vector<QDate> presenceDays = days();
  const auto connection = openDatabase();
  const auto people = demoPeople(m_employees, runtime::now().date());
  const PortraitStudio studio(m_photoKb);
  connection->BeginTrans();
  insertDepartments(*connection);
  insertEmployees(connection, people, studio);
  const int records = insertPresence(*connection, people, presenceDays);
  connection->CommitTrans();

  const QString missingHelp = home.putHelp();
  home.keep();
  streams.out << QStringLiteral("已建立：%1（部门 %2 个，员工 %3 名，考勤记录 %4 条）\n")
                     .arg(runtime::AppPath())
                     .arg(demoDepartments().size())
                     .arg(m_employees)
                     .arg(records);
  if (!missingHelp.isEmpty()) streams.err << missingHelp << '\n';
  return Done;
}

}  // namespace cli
