#include "printing/LogoFile.h"

#include <algorithm>
#include <array>

#include <QFileInfo>

#include "records/PhotoFile.h"
#include "runtime/ProgramDirectory.h"
#include "runtime/ReplacingFile.h"
#include "runtime/RuntimeError.h"

namespace logo {

bool isProgramFile(const QString& name) {
  static const std::array names = {QStringLiteral("attendance.ini"), QStringLiteral("vorlent.dat"),
                                   QStringLiteral("HELP.CHM"), QStringLiteral("help")};
  // The database's own journals begin with its name.
  return name.startsWith(names[1], Qt::CaseInsensitive) ||
         std::any_of(names.begin(), names.end(),
                     [&name](const QString& own) { return name.compare(own, Qt::CaseInsensitive) == 0; });
}

bool isDeletedLater(const QString& name) {
  return name.compare(QStringLiteral("temp.jpg"), Qt::CaseInsensitive) == 0 || isPhotoOfSomebody(name);
}

graphics::PicturePointer read(const QString& path) {
  graphics::PicturePointer picture = graphics::LoadPicture(path);
  if (picture->decode(QSize(64, 64)).isNull()) {
    throw runtime::RuntimeError(runtime::ErrorNumber::InvalidPicture,
                                QStringLiteral("图片“%1”已损坏").arg(path));
  }
  return picture;
}

bool isInPlace(const QString& path) {
  const QFileInfo file(path);
  return file.canonicalFilePath() == QFileInfo(runtime::appFile(file.fileName())).canonicalFilePath();
}

QString keep(const graphics::Picture& picture, const QString& name) {
  QString path = runtime::appFile(name);
  runtime::replaceFile(path, picture.bytes());
  return path;
}

}  // namespace logo
