#include "shell/HelpDocument.h"

#include <QDir>
#include <QFileInfo>

namespace shell {

QString readableHelp(const QString& path, const std::function<bool()>& hasViewer) {
  const QFileInfo file(path);
  if (file.suffix().compare(QLatin1String("chm"), Qt::CaseInsensitive) != 0) return path;
  const QString pages = file.dir().filePath(QStringLiteral("help/index.html"));
  if (!QFileInfo(pages).isFile()) return path;
  return file.isFile() && hasViewer() ? path : pages;
}

}  // namespace shell
