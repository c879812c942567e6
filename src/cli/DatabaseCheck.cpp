#include "cli/DatabaseCheck.h"

#include <limits>

#include "ado/AdoError.h"
#include "ado/Recordset.h"
#include "cli/Database.h"
#include "foundation/Schema.h"
#include "graphics/Picture.h"
#include "runtime/Conversions.h"
#include "runtime/ProgramDirectory.h"
#include "runtime/RuntimeError.h"

namespace cli {

namespace {

constexpr qint64 largestDepartment = std::numeric_limits<std::int16_t>::max();

QString oneLine(QString text) {
  for (QChar& character : text) {
    if (character.category() == QChar::Other_Control) character = u'?';
  }
  return text;
}

QString textOf(ado::Recordset& rows, const QString& column) {
  return runtime::toTextOrEmpty(rows.Fields(column).Value());
}

}  // namespace

DatabaseCheck::DatabaseCheck(std::shared_ptr<ado::Connection> connection, Report report)
    : m_connection(std::move(connection)), m_report(std::move(report)) {}

void DatabaseCheck::run() {
  checkPages();
  checkDepartments();
  checkEmployees();
}

QString DatabaseCheck::summary() const {
  QStringList counts;
  for (const QString& table : requiredTables()) {
    counts.append(QStringLiteral("%1 %2 行")
                      .arg(table)
                      .arg(countOf(m_connection, QStringLiteral("SELECT COUNT(*) FROM ") + table)));
  }
  return counts.join(QStringLiteral("，"));
}

void DatabaseCheck::checkPages() {
  for (const QString& finding : m_connection->CheckPages()) {
    m_report(QStringLiteral("数据库已损坏：%1").arg(oneLine(finding)));
  }
}

void DatabaseCheck::checkDepartments() {
  ado::Recordset rows;
  rows.Open(QStringLiteral("SELECT ID, DNAME FROM Dept ORDER BY ID"), m_connection);
  for (; !rows.IsEOF(); rows.MoveNext()) {
    const qint64 id = rows.Fields(QStringLiteral("ID")).Value().toLongLong();
    m_departments.insert(id);
    if (id <= largestDepartment) continue;
    m_report(QStringLiteral("部门“%1”：部门号 %2 大于 %3")
                 .arg(oneLine(textOf(rows, QStringLiteral("DNAME"))))
                 .arg(id)
                 .arg(largestDepartment));
  }
}

QSet<int> DatabaseCheck::sharing(const QString& column) const {
  // Compared by the database, which knows when two texts count as the same.
  ado::Recordset rows;
  rows.Open(QStringLiteral("SELECT ID FROM Employee WHERE %1 <> '' AND %1 IN (SELECT %1 FROM Employee "
                           "GROUP BY %1 HAVING COUNT(*) > 1)")
                .arg(column),
            m_connection);
  QSet<int> ids;
  for (; !rows.IsEOF(); rows.MoveNext()) ids.insert(rows.Fields(0).Value().toInt());
  return ids;
}

void DatabaseCheck::checkEmployees() {
  m_sameNumber = sharing(QStringLiteral("ENUMBER"));
  m_sameBarcode = sharing(QStringLiteral("EBARCODE"));
  ado::Recordset rows;
  rows.Open(
      QStringLiteral("SELECT ID, ENUMBER, ENAME, DID, EBARCODE, HEADIMG FROM Employee ORDER BY ENUMBER, ID"),
      m_connection);
  for (; !rows.IsEOF(); rows.MoveNext()) checkEmployee(rows);
}

void DatabaseCheck::checkEmployee(ado::Recordset& rows) {
  const QString number = textOf(rows, QStringLiteral("ENUMBER"));
  const QString barcode = textOf(rows, QStringLiteral("EBARCODE"));
  const int id = rows.Fields(QStringLiteral("ID")).Value().toInt();
  const QVariant department = rows.Fields(QStringLiteral("DID")).Value();
  const QString who =
      QStringLiteral("员工“%1”（%2）：").arg(oneLine(number), oneLine(textOf(rows, QStringLiteral("ENAME"))));

  checkNumber(who, number);
  if (m_sameNumber.contains(id)) m_report(who + QStringLiteral("编号与其他员工相同"));
  if (runtime::isNull(department) || !m_departments.contains(department.toLongLong())) {
    m_report(who + QStringLiteral("没有部门"));
  }
  if (barcode.isEmpty()) m_report(who + QStringLiteral("没有条码"));
  if (m_sameBarcode.contains(id))
    m_report(who + QStringLiteral("条码“%1”与其他员工相同").arg(oneLine(barcode)));
  checkPhoto(who, rows.Fields(QStringLiteral("HEADIMG")));
}

void DatabaseCheck::checkNumber(const QString& who, const QString& number) {
  if (number.isEmpty()) {
    m_report(who + QStringLiteral("编号为空"));
  } else if (!runtime::isPlainFileName(number)) {
    m_report(who + QStringLiteral("编号不能用作文件名"));
  } else if (number.contains(u'\'')) {
    m_report(who + QStringLiteral("编号含有单引号，无法按编号读取"));
  }
}

void DatabaseCheck::checkPhoto(const QString& who, const ado::Field& photo) {
  QByteArray bytes;
  try {
    bytes = photo.Value().toByteArray();
  } catch (const ado::AdoError& error) {
    if (error.kind() != runtime::FailureKind::Damaged) throw;
    // Where a page is damaged the other photos may still be read.
    m_report(who + QStringLiteral("照片无法读取：") + error.description());
    return;
  }
  if (bytes.isEmpty()) {
    m_report(who + QStringLiteral("没有照片"));
    return;
  }
  try {
    const graphics::Picture picture(bytes, who);
    if (picture.decode().isNull()) m_report(who + QStringLiteral("照片已损坏"));
  } catch (const runtime::RuntimeError&) {
    m_report(who + QStringLiteral("照片不是可识别的图片"));
  }
}

}  // namespace cli
