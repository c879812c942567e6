#include "runtime/ProgramDirectory.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace runtime {

namespace {

constexpr qsizetype longestPlainName = 250;

QString& chosenDirectory() {
  static QString directory;
  return directory;
}

}  // namespace

QString AppPath() {
  const QString& chosen = chosenDirectory();
  return chosen.isEmpty() ? QCoreApplication::applicationDirPath() : chosen;
}

void setAppPath(const QString& directory) {
  chosenDirectory() = directory.isEmpty() ? QString() : QDir::cleanPath(QDir(directory).absolutePath());
}

void chooseAppPath(const QString& chosen) {
  setAppPath(chosen.isEmpty() ? qEnvironmentVariable("ATTENDANCE_HOME") : chosen);
}

QString appFile(const QString& name) {
  return AppPath() + u'/' + name;
}

QString nativePath(const QString& path) {
  return QString(path).replace(u'\\', u'/');
}

bool isPlainFileName(const QString& name) {
  if (name.isEmpty() || name == QLatin1String(".") || name == QLatin1String("..")) return false;
  if (name.contains(u'/') || name.contains(u'\\') || name.contains(QChar(u'\0'))) return false;
  return name.toUtf8().size() <= longestPlainName;
}

bool isNormalFile(const QString& path) {
  return QFileInfo(path).isFile();
}

}  // namespace runtime
