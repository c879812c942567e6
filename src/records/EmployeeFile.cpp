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

/// The file's first row. An error tells the file and the value that is wrong in it.
class FileRow {
 public:
  explicit FileRow(const QString& path) : m_path(path) { m_row.Open(path); }

  [[nodiscard]] bool isThere() const { return !m_row.IsEOF(); }

  /// The value of `column`, which is known to people as `what`.
  template <typename Convert>
  auto value(const QString& column, const QString& what, const Convert& convert) {
    try {
      const QVariant found = m_row.Fields(column).Value();
      if (runtime::isNull(found)) refuseMissing(what);
      return convert(found);
    } catch (const runtime::RuntimeError& error) {
      throw error.reworded(QStringLiteral("文件“%1”的%2（列 %3）不能用：%4。请改正文件，或重新导出")
                               .arg(m_path, what, column, error.description()));
    }
  }

 private:
  [[noreturn]] static void refuseMissing(const QString& what) {
    throw runtime::RuntimeError(runtime::ErrorNumber::InvalidUseOfNull, QStringLiteral("没有") + what);
  }

  QString m_path;
  ado::Recordset m_row;
};

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
  FileRow row(path);
  if (!row.isThere()) return NoRow;
  m_name = row.value(QStringLiteral("ENAME"), QStringLiteral("姓名"), runtime::toText);
  m_department = row.value(QStringLiteral("DID"), QStringLiteral("部门"), runtime::toInt16);
  m_enterDate = row.value(QStringLiteral("ENTERDATE"), QStringLiteral("录入日期"), runtime::toText);
  m_photo = row.value(QStringLiteral("HEADIMG"), QStringLiteral("照片"), bytesOf);
  return Loaded;
}
