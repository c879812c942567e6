#include "records/PhotoFile.h"

#include "ado/Recordset.h"
#include "ado/Stream.h"
#include "foundation/Attempt.h"
#include "foundation/SqlText.h"
#include "foundation/clsDbConn.h"
#include "runtime/Conversions.h"
#include "runtime/ProgramDirectory.h"
#include "runtime/RuntimeError.h"

namespace {

QString cannotWrite(const QString& number, const QString& why) {
  return QStringLiteral("编号为[%1]的员工的照片无法写入：%2").arg(number, why);
}

}  // namespace

void savePhoto(const QVariant& image, const QString& path) {
  ado::Stream stream;
  stream.Mode = ado::ConnectMode::ReadWrite;
  stream.Type = ado::StreamType::Binary;
  stream.Open();
  stream.Write(image);
  stream.SaveToFile(path, ado::SaveOptions::CreateOverWrite);
  stream.Close();
}

QString photoFile(const QString& number) {
  if (!runtime::isPlainFileName(number)) {
    throw runtime::RuntimeError(runtime::ErrorNumber::FileAccess,
                                cannotWrite(number, QStringLiteral("编号不能用作文件名")));
  }
  return runtime::appFile(number + QStringLiteral(".jpg"));
}

QString writePhotoFile(const QString& number, const QVariant& image) {
  QString path = photoFile(number);
  try {
    savePhoto(image, path);
  } catch (const runtime::RuntimeError& error) {
    const QString& why = error.description();
    throw error.reworded(runtime::isNull(image)
                             ? QStringLiteral("编号为[%1]的员工没有照片：%2").arg(number, why)
                             : cannotWrite(number, why));
  }
  return path;
}

bool isPhotoOfSomebody(const QString& name) {
  const QString ending = QStringLiteral(".jpg");
  if (!name.endsWith(ending, Qt::CaseInsensitive)) return false;
  QString failure;
  return attempt(failure, false, [&] {
    ado::Recordset rows;
    rows.Open(QStringLiteral("SELECT ENUMBER FROM Employee WHERE ENUMBER = ") +
                  sql::quoted(name.chopped(ending.size())),
              clsDbConn().GetDbConn());
    return !rows.IsEOF();
  });
}
