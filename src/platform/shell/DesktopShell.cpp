#include "shell/DesktopShell.h"

#include <QDesktopServices>
#include <QFileInfo>

namespace shell {

QUrl targetUrl(const QString& target) {
  if (target.contains(QStringLiteral("://"))) return QUrl(target);
  return QUrl::fromLocalFile(QFileInfo(target).absoluteFilePath());
}

bool DesktopShell::open(const QString& target) {
  const QUrl url = targetUrl(target);
  // The desktop's opener starts before it notices that the file is missing, and would report success.
  if (url.isLocalFile() && !QFileInfo::exists(url.toLocalFile())) return false;
  return QDesktopServices::openUrl(url);
}

}  // namespace shell
