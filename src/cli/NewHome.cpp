#include "cli/NewHome.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "ado/Connection.h"
#include "foundation/GlobalDefine.h"
#include "foundation/HelpFiles.h"
#include "foundation/Schema.h"
#include "foundation/clsConfiguration.h"
#include "foundation/clsDbConn.h"
#include "foundation/mdMain.h"
#include "runtime/CodePage.h"
#include "runtime/ReplacingFile.h"
#include "runtime/RuntimeError.h"
#include "runtime/SystemWords.h"

namespace cli {

namespace {

// A longer value comes back cut from the settings.
constexpr qsizetype longestSetting = 254;

[[noreturn]] void refuse(runtime::ErrorNumber number, const QString& description) {
  throw runtime::RuntimeError(number, description);
}

QString databasePath(const QString& directory) {
  return QDir(directory).filePath(QStringLiteral("vorlent.dat"));
}

/// Something of that name is there, even a link that leads nowhere.
bool exists(const QString& path) {
  const QFileInfo info(path);
  return info.exists() || info.isSymLink();
}

void refuseExisting(const QString& path) {
  if (exists(path)) {
    refuse(runtime::ErrorNumber::FileAccess, QStringLiteral("文件“%1”已经存在，不会覆盖").arg(path));
  }
}

}  // namespace

QString homePathFault(const QString& directory) {
  for (const QChar character : directory) {
    if (QStringLiteral(";\\\"'").contains(character) || character.category() == QChar::Other_Control) {
      return QStringLiteral("目录“%1”的路径含有分号、反斜杠、引号或控制字符").arg(directory);
    }
  }
  if (directory.trimmed() != directory) {
    return QStringLiteral("目录“%1”的路径以空白开头或结尾").arg(directory);
  }
  const auto bytes = runtime::toCodePage(directory);
  if (!bytes) return QStringLiteral("目录“%1”的路径含有设置文件无法保存的字符").arg(directory);
  if (bytes->size() > longestSetting) {
    return QStringLiteral("目录“%1”的路径超过 %2 字节").arg(directory).arg(longestSetting);
  }
  return {};
}

NewHome::NewHome(const QString& directory) : m_directory(directory) {}

NewHome::~NewHome() {
  if (m_kept) return;
  gConnection.reset();
  for (const QString& file : m_madeFiles) QFile::remove(file);
  for (const QString& directory : m_madeDirectories) QDir().rmdir(directory);
}

void NewHome::make() {
  const QString fault = homePathFault(m_directory);
  if (!fault.isEmpty()) refuse(runtime::ErrorNumber::InvalidCall, fault);
  refuseExisting(databasePath(m_directory));
  refuseExisting(settingsFile());
  refuseReadOnly();
  makeDirectory(m_directory);
  makeSettings();
  makeDatabase();
}

void NewHome::refuseReadOnly() const {
  QString existing = m_directory;
  while (!exists(existing)) existing = QFileInfo(existing).path();
  if (!QFileInfo(existing).isDir()) {
    refuse(runtime::ErrorNumber::FileAccess, QStringLiteral("“%1”不是目录").arg(existing));
  }
  if (runtime::isReadOnly(existing)) {
    refuse(runtime::ErrorNumber::FileAccess, QStringLiteral("目录“%1”是只读的").arg(existing));
  }
}

QString NewHome::putHelp() {
  const HelpFiles help;
  const QDir home(m_directory);
  if (help.hasPages()) makeDirectory(home.filePath(QStringLiteral("help")));
  for (const QString& name : help.names()) {
    const QString path = home.filePath(name);
    if (exists(path)) continue;
    m_madeFiles.append(path);
    help.copy(name, m_directory);
  }
  return help.missing();
}

void NewHome::makeDirectory(const QString& directory) {
  QStringList missing;
  for (QString path = directory; !QFileInfo::exists(path); path = QFileInfo(path).path()) {
    missing.append(path);
  }
  for (auto path = missing.crbegin(); path != missing.crend(); ++path) {
    if (!QDir().mkdir(*path)) {
      refuse(runtime::ErrorNumber::FileAccess, QStringLiteral("无法建立目录“%1”").arg(*path));
    }
    m_madeDirectories.prepend(*path);
  }
}

void NewHome::makeSettings() {
  // Made empty and exclusively first: of two that make the same home at once only one gets further.
  QFile file(settingsFile());
  if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
    refuse(runtime::ErrorNumber::FileAccess,
           QStringLiteral("无法建立文件“%1”：%2")
               .arg(file.fileName(), runtime::systemWords(file.errorString())));
  }
  file.close();
  m_madeFiles.append(file.fileName());

  clsConfiguration settings;
  settings.setFileName(settingsFile());
  settings.setGroup(QStringLiteral("DATA"));
  if (!settings.SetItem(QStringLiteral("PATH"), m_directory)) {
    refuse(runtime::ErrorNumber::FileIo, QStringLiteral("无法写入文件“%1”").arg(file.fileName()));
  }
  if (GetDataPath() != m_directory) {
    refuse(runtime::ErrorNumber::InvalidCall, QStringLiteral("设置文件无法保存目录“%1”").arg(m_directory));
  }
}

void NewHome::makeDatabase() {
  const QString path = databasePath(m_directory);
  ado::createDatabase(path, databasePassword(), schemaStatements());
  m_madeFiles.append({path, path + QStringLiteral("-journal")});
  std::ignore = ado::required(clsDbConn().GetDbConn()).State();
}

}  // namespace cli
