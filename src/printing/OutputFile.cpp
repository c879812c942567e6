#include "printing/OutputFile.h"

#include <algorithm>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "foundation/clsConfiguration.h"
#include "foundation/mdMain.h"
#include "printing/clsLogo.h"
#include "runtime/ProgramDirectory.h"
#include "runtime/RuntimeError.h"

namespace {

/// What the engine puts beside the database while it works.
const QStringList companions{QStringLiteral("-journal"), QStringLiteral("-wal"), QStringLiteral("-shm")};

/// The path behind all links, as far as it exists; the last part may not exist yet.
QString resolved(const QString& path) {
  const QFileInfo file(path);
  if (file.exists()) return file.canonicalFilePath();
  const QString directory = QFileInfo(file.absolutePath()).canonicalFilePath();
  return directory.isEmpty() ? QDir::cleanPath(file.absoluteFilePath())
                             : QDir(directory).filePath(file.fileName());
}

/// Also by way of links, and where neither exists yet.
bool isSameFile(const QString& a, const QString& b) {
  if (resolved(a).compare(resolved(b), Qt::CaseInsensitive) == 0) return true;
  struct stat first {};
  struct stat second {};
  return ::stat(QFile::encodeName(a).constData(), &first) == 0 &&
         ::stat(QFile::encodeName(b).constData(), &second) == 0 && first.st_dev == second.st_dev &&
         first.st_ino == second.st_ino;
}

QStringList ownFiles() {
  QStringList own{databaseFile(), settingsFile(), runtime::appFile(QStringLiteral("HELP.CHM")),
                  clsLogo().GetPath()};
  for (const QString& ending : companions) own.append(databaseFile() + ending);
  own.removeAll(QString());
  return own;
}

/// Whether employees' photo files, or the picture of an import, may come and go under that name.
bool isPhotoFile(const QString& path) {
  return path.endsWith(QStringLiteral(".jpg"), Qt::CaseInsensitive) &&
         isSameFile(QFileInfo(path).path(), runtime::AppPath());
}

bool isHelpPage(const QString& path) {
  return isSameFile(QFileInfo(path).path(), runtime::appFile(QStringLiteral("help")));
}

void refuseTarget(const QString& path, const QString& target) {
  const QStringList own = ownFiles();
  const bool taken = std::any_of(own.begin(), own.end(),
                                 [&target](const QString& file) { return isSameFile(target, file); });
  if (taken || isHelpPage(target)) {
    throw runtime::RuntimeError(runtime::ErrorNumber::FileAccess,
                                QStringLiteral("“%1”是程序自己的文件，不能用作输出").arg(path));
  }
  if (isPhotoFile(target)) {
    throw runtime::RuntimeError(runtime::ErrorNumber::FileAccess,
                                QStringLiteral("“%1”是存放照片的位置，不能用作输出").arg(path));
  }
}

}  // namespace

void refuseOwnFile(const QString& path) {
  refuseTarget(path, path);
  // A link is written through: what it leads to counts, also where nothing is there yet.
  const QFileInfo file(path);
  if (file.isSymLink()) refuseTarget(path, file.symLinkTarget());
}
