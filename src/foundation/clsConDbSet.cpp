#include "foundation/clsConDbSet.h"

#include "foundation/clsConfiguration.h"

namespace {

clsConfiguration serverSettings() {
  clsConfiguration settings;
  settings.setFileName(settingsFile());
  settings.setGroup(QStringLiteral("ATTENDANCE"));
  return settings;
}

}  // namespace

clsConDbSet::clsConDbSet() {
  const clsConfiguration settings = serverSettings();
  m_server = settings.GetItem(QStringLiteral("DBSERVER"));
  m_loginName = settings.GetItem(QStringLiteral("DBLOGINNAME"));
  m_loginPwd = settings.GetItem(QStringLiteral("DBLOGINPWD"));
  m_dbName = settings.GetItem(QStringLiteral("DBNAME"));
}

bool clsConDbSet::Save() const {
  const clsConfiguration settings = serverSettings();
  const bool server = settings.SetItem(QStringLiteral("DBSERVER"), m_server);
  const bool loginName = settings.SetItem(QStringLiteral("DBLOGINNAME"), m_loginName);
  const bool loginPwd = settings.SetItem(QStringLiteral("DBLOGINPWD"), m_loginPwd);
  const bool name = settings.SetItem(QStringLiteral("DBNAME"), m_dbName);
  return server && loginName && loginPwd && name;
}
