#include "foundation/HelpFiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include "runtime/ReplacingFile.h"
#include "runtime/RuntimeError.h"
#include "runtime/SystemWords.h"

namespace {

const QString compiled = QStringLiteral("HELP.CHM");
const QString pages = QStringLiteral("help");

QStringList namesIn(const QString& place) {
  QStringList names;
  const QDir directory(place);
  if (QFileInfo(directory.filePath(compiled)).isFile()) names.append(compiled);
  const QStringList endings{QStringLiteral("*.html"), QStringLiteral("*.css")};
  for (const QString& page : QDir(directory.filePath(pages)).entryList(endings, QDir::Files)) {
    names.append(pages + u'/' + page);
  }
  return names;
}

QByteArray contentOf(const QString& path) {
  QFile file(path);
  if (file.open(QIODevice::ReadOnly)) return file.readAll();
  throw runtime::RuntimeError(
      runtime::ErrorNumber::FileAccess,
      QStringLiteral("无法读取文件“%1”：%2").arg(path, runtime::systemWords(file.errorString())));
}

void refuseReadOnly(const QString& directory) {
  if (!runtime::isReadOnly(directory)) return;
  throw runtime::RuntimeError(runtime::ErrorNumber::FileAccess,
                              QStringLiteral("目录“%1”是只读的").arg(directory));
}

bool holds(const QString& path, const QByteArray& content) {
  QFile file(path);
  return file.size() == content.size() && file.open(QIODevice::ReadOnly) && file.readAll() == content;
}

}  // namespace

HelpFiles::HelpFiles(const QStringList& places) {
  for (const QString& place : places) {
    m_place = place;
    m_names = namesIn(place);
    if (!m_names.isEmpty()) return;
  }
}

QStringList HelpFiles::shippedPlaces() {
  const QDir programs(QCoreApplication::applicationDirPath());
  return {programs.path(), QDir::cleanPath(programs.filePath(QStringLiteral("../share/attendance")))};
}

bool HelpFiles::hasPages() const {
  return !m_names.isEmpty() && m_names != QStringList(compiled);
}

QString HelpFiles::missing() const {
  if (m_names.isEmpty()) return QStringLiteral("没有找到帮助文件，程序目录中没有帮助");
  if (!m_names.contains(compiled)) return QStringLiteral("没有找到 HELP.CHM，帮助以网页打开");
  if (!hasPages()) return QStringLiteral("没有找到帮助的网页，只有 HELP.CHM");
  return {};
}

void HelpFiles::copy(const QString& name, const QString& directory) const {
  runtime::replaceFile(QDir(directory).filePath(name), contentOf(QDir(m_place).filePath(name)));
}

void HelpFiles::refresh(const QString& directory) const {
  const QDir target(directory);
  for (const QString& name : m_names) {
    if (holds(target.filePath(name), contentOf(QDir(m_place).filePath(name)))) continue;
    refuseReadOnly(directory);
    if (name != compiled) std::ignore = target.mkpath(pages);
    copy(name, directory);
  }
}
