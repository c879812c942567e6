#include "printing/OutputFile.h"

#include <sys/stat.h>

#include <QFile>
#include <QFileInfo>

#include "foundation/clsConfiguration.h"
#include "foundation/mdMain.h"
#include "printing/clsLogo.h"
#include "runtime/ProgramDirectory.h"
#include "runtime/RuntimeError.h"

namespace {

/// Also by way of links.
bool isSameFile(const QString& a, const QString& b) {
  if (QFileInfo(a).absoluteFilePath() == QFileInfo(b).absoluteFilePath()) return true;
  struct stat first {};
  struct stat second {};
  return ::stat(QFile::encodeName(a).constData(), &first) == 0 &&
         ::stat(QFile::encodeName(b).constData(), &second) == 0 && first.st_dev == second.st_dev &&
         first.st_ino == second.st_ino;
}

bool isPhotoFile(const QString& path) {
  const QFileInfo info(path);
  return info.suffix().compare(QLatin1String("jpg"), Qt::CaseInsensitive) == 0 &&
         isSameFile(info.absolutePath(), runtime::AppPath());
}

}  // namespace

void refuseOwnFile(const QString& path) {
  const QString database = databaseFile();
  const QStringList own{database, database + QStringLiteral("-journal"), settingsFile(), clsLogo().GetPath()};
  for (const QString& file : own) {
    if (file.isEmpty() || !isSameFile(path, file)) continue;
    throw runtime::RuntimeError(runtime::ErrorNumber::FileAccess,
                                QStringLiteral("“%1”是程序自己的文件，不能用作输出").arg(path));
  }
  if (isPhotoFile(path)) {
    throw runtime::RuntimeError(runtime::ErrorNumber::FileAccess,
                                QStringLiteral("“%1”是存放照片的位置，不能用作输出").arg(path));
  }
}
