#include "cli/EmployeeXmlCommand.h"

#include "cli/Database.h"
#include "cli/TemporaryPhoto.h"
#include "exchange/RosterPhotos.h"
#include "records/clsDept.h"
#include "records/clsEmployee.h"
#include "runtime/Clock.h"
#include "runtime/Conversions.h"
#include "runtime/OutputGuard.h"
#include "runtime/RuntimeError.h"

namespace cli {

namespace {

[[noreturn]] void fail(const QString& description) {
  throw runtime::RuntimeError(runtime::ErrorNumber::InvalidCall, description);
}

/// The number of the department with that name.
std::int16_t departmentNumber(const QString& name) {
  clsDept dept;
  dept.setDNAME(name.trimmed());
  if (!dept.lastFailure().isEmpty()) fail(dept.lastFailure());
  if (dept.ID() < 1) fail(QStringLiteral("没有名为“%1”的部门").arg(name));
  return dept.ID();
}

}  // namespace

QString EmployeeXmlCommand::summary() const {
  return QStringLiteral("写一个新员工的 XML 文件，供导入");
}

std::vector<Option> EmployeeXmlCommand::options() {
  return {{.name = QStringLiteral("--name"),
           .valueName = QStringLiteral("NAME"),
           .help = QStringLiteral("姓名"),
           .target = &m_name,
           .required = true},
          {.name = QStringLiteral("--dept"),
           .valueName = QStringLiteral("DEPARTMENT"),
           .help = QStringLiteral("部门名称"),
           .target = &m_dept,
           .required = true},
          {.name = QStringLiteral("--photo"),
           .valueName = QStringLiteral("FILE"),
           .help = QStringLiteral("照片文件，只会被读取；超过 512 KB 的照片缩小后写入"),
           .target = &m_photo,
           .required = true},
          {.name = QStringLiteral("--date"),
           .valueName = QStringLiteral("YYYY-MM-DD"),
           .help = QStringLiteral("录入日期，不给出时为今天"),
           .target = &m_date},
          {.name = QStringLiteral("--out"),
           .valueName = QStringLiteral("FILE.xml"),
           .help = QStringLiteral("写到这个文件；已有的文件只会被完整的新文件取代"),
           .target = &m_out,
           .required = true}};
}

QString EmployeeXmlCommand::usageFault() const {
  if (m_name.trimmed().isEmpty()) return QStringLiteral("--name 不能为空");
  if (m_date.isEmpty() || runtime::parseDateTime(m_date)) return {};
  return QStringLiteral("“%1”不是 2026-11-15 这样的日期").arg(m_date);
}

int EmployeeXmlCommand::run(const Streams& streams) {
  const auto connection = openDatabase();
  runtime::requireFreeForOutput(m_out);
  const TemporaryPhoto photo(loadRosterPhoto(m_photo));
  clsEmployee employee;
  employee.setENAME(m_name);
  employee.setdid(departmentNumber(m_dept));
  employee.setENTERDATE(m_date.isEmpty() ? runtime::now().date().startOfDay()
                                         : *runtime::parseDateTime(m_date));
  employee.setHeadImg(photo.path());
  if (!employee.savetoXML(m_out)) fail(employee.lastFailure());
  streams.out << QStringLiteral("已写入员工“%1”的文件：%2\n").arg(employee.ENAME(), m_out);
  return Done;
}

}  // namespace cli
