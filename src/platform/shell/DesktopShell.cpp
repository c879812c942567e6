#include "shell/DesktopShell.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QProcess>

#include "shell/DesktopHelpViewer.h"
#include "shell/HelpDocument.h"

namespace shell {

QUrl targetUrl(const QString& target) {
  if (target.contains(QStringLiteral("://"))) return QUrl(target);
  return QUrl::fromLocalFile(QFileInfo(target).absoluteFilePath());
}

bool DesktopShell::open(const QString& target) {
  QUrl url = targetUrl(target);
  if (url.isLocalFile()) url = QUrl::fromLocalFile(readableHelp(url.toLocalFile(), desktopHasHelpViewer));
  // The desktop's opener starts before it notices that the file is missing, and would report success.
  if (url.isLocalFile() && !QFileInfo::exists(url.toLocalFile())) return false;
  return QDesktopServices::openUrl(url);
}

bool DesktopShell::start(const QString& program) {
  // A bare name would start whatever the search path finds first.
  return QFileInfo(program).isAbsolute() && QProcess::startDetached(program, QStringList());
}

QString DesktopShell::registryFile(RootKey root) const {
  return root == RootKey::LocalMachine ? m_registryFile : QString();
}

}  // namespace shell
