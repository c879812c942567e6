#include "records/EmployeeFile.h"

#include "ado/Recordset.h"
#include "ado/Stream.h"
#include "foundation/Attempt.h"
#include "runtime/Conversions.h"
#include "runtime/ProgramDirectory.h"
#include "runtime/RuntimeError.h"

namespace {

QByteArray bytesOf(const QVariant& value) {
  ado::Stream stream;
  stream.Open();
  // It takes nothing but bytes.
  stream.Write(value);
  return value.toByteArray();
}

/// The value of the column in the current row; an error names the column, or what it is when there is none.
template <typename Convert>
auto valueOf(ado::Recordset& row, const QString& column, const QString& what, const Convert& convert) {
  const QVariant value = row.Fields(column).Value();
  if (runtime::isNull(value)) {
    throw runtime::RuntimeError(runtime::ErrorNumber::InvalidUseOfNull, QStringLiteral("文件中没有") + what);
  }
  try {
    return convert(value);
  } catch (const runtime::RuntimeError& error) {
    throw error.reworded(QStringLiteral("列“%1”：%2").arg(column, error.description()));
  }
}

}  // namespace

int EmployeeFile::Load(const QString& path) {
  *this = EmployeeFile();
  if (path.isEmpty() || !runtime::isNormalFile(path)) {
    m_lastFailure = QStringLiteral("找不到文件“%1”").arg(path);
    return Missing;
  }
  const int result = attempt(m_lastFailure, int{Failed}, [&] { return read(path.trimmed()); });
  if (result == NoRow) m_lastFailure = QStringLiteral("文件“%1”中没有员工").arg(path);
  return result;
}

int EmployeeFile::read(const QString& path) {
  ado::Recordset row;
  row.Open(path);
  if (row.IsEOF()) return NoRow;
  m_name = valueOf(row, QStringLiteral("ENAME"), QStringLiteral("姓名"), runtime::toText);
  m_department = valueOf(row, QStringLiteral("DID"), QStringLiteral("部门"), runtime::toInt16);
  m_enterDate = valueOf(row, QStringLiteral("ENTERDATE"), QStringLiteral("录入日期"), runtime::toText);
  m_photo = valueOf(row, QStringLiteral("HEADIMG"), QStringLiteral("照片"), bytesOf);
  return Loaded;
}
