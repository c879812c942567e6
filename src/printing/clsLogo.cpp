#include "printing/clsLogo.h"

namespace {

// Stored.
const QString& pathKey() {
  static const QString key = QStringLiteral("FILEPATH");
  return key;
}

}  // namespace

clsLogo::clsLogo() {
  m_configuration.setFileName(settingsFile());
  m_configuration.setGroup(QStringLiteral("LOGO"));
}

bool clsLogo::SetPath(const QString& path) {
  return m_configuration.SetItem(pathKey(), path.trimmed());
}

QString clsLogo::GetPath() const {
  return m_configuration.GetItem(pathKey());
}
