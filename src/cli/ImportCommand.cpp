#include "cli/ImportCommand.h"

#include "cli/Database.h"
#include "cli/TemporaryPhoto.h"
#include "foundation/SqlText.h"
#include "graphics/Picture.h"
#include "records/EmployeeFile.h"
#include "records/clsDept.h"
#include "records/clsEmployee.h"
#include "runtime/Conversions.h"
#include "runtime/ProgramDirectory.h"
#include "runtime/RuntimeError.h"

namespace cli {

namespace {

[[noreturn]] void fail(const QString& description) {
  throw runtime::RuntimeError(runtime::ErrorNumber::InvalidCall, description);
}

int rowsWith(const QString& table, const QString& number) {
  return countOf(openDatabase(),
                 QStringLiteral("SELECT COUNT(*) FROM %1 WHERE ENUMBER=").arg(table) + sql::quoted(number));
}

/// Also a number whose employee has no department any more is taken: storing would overwrite that one.
void requireFree(const QString& number) {
  if (rowsWith(QStringLiteral("Employee"), number) == 0) return;
  fail(QStringLiteral("员工编号“%1”已存在，请使用未使用的员工编号").arg(number));
}

void requirePicture(const QByteArray& photo) {
  // A small picture is enough to find damage, and spares memory.
  constexpr QSize enough(100, 100);
  if (graphics::Picture(photo, QStringLiteral("照片")).decode(enough).isNull())
    fail(QStringLiteral("照片已损坏"));
}

void loadDepartment(clsDept& dept, std::int16_t number) {
  dept.setID(number);
  if (!dept.lastFailure().isEmpty()) fail(dept.lastFailure());
  if (dept.DNAME().isEmpty()) fail(QStringLiteral("没有编号为“%1”的部门").arg(number));
}

void store(clsEmployee& employee) {
  if (employee.UpdateEBarCode() && employee.Add()) return;
  const QString& why = employee.lastFailure();
  fail(why.isEmpty() ? QStringLiteral("文件中没有姓名") : why);
}

}  // namespace

QString ImportCommand::summary() const {
  return QStringLiteral("从 XML 文件导入一名新员工");
}

std::vector<Option> ImportCommand::options() {
  return {{.name = QStringLiteral("FILE"),
           .valueName = QStringLiteral("FILE.xml"),
           .help = QStringLiteral("一名员工的文件，只会被读取"),
           .target = &m_file,
           .required = true},
          {.name = QStringLiteral("--number"),
           .valueName = QStringLiteral("NUMBER"),
           .help = QStringLiteral("员工编号，不能是已有的编号；条码自动生成"),
           .target = &m_number,
           .required = true}};
}

QString ImportCommand::usageFault() const {
  if (runtime::isPlainFileName(m_number.trimmed())) return {};
  return QStringLiteral("员工编号“%1”为空，或者不能用作照片的文件名").arg(m_number);
}

int ImportCommand::run(const Streams& streams) {
  const auto connection = openDatabase();
  EmployeeFile file;
  if (file.Load(m_file) != EmployeeFile::Loaded) fail(file.lastFailure());
  const QString number = m_number.trimmed();
  requireFree(number);
  requirePicture(*file.photo());
  clsDept dept;
  loadDepartment(dept, *file.department());

  const TemporaryPhoto photo(*file.photo());
  clsEmployee employee;
  employee.setENAME(*file.name());
  employee.setdid(dept.ID());
  employee.setENTERDATE(runtime::toDateTime(*file.enterDate()));
  employee.setENUMBER(number);
  employee.setHeadImg(photo.path());
  store(employee);
  streams.out << QStringLiteral("已导入员工“%1”（%2，%3），条码 %4\n")
                     .arg(number, employee.ENAME(), dept.DNAME(), employee.EBARCODE());
  if (rowsWith(QStringLiteral("Presence"), number) > 0)
    streams.err << QStringLiteral("注意：编号“%1”以前有过签到记录\n").arg(number);
  return Done;
}

}  // namespace cli
