#include "foundation/GlobalDefine.h"

#include "foundation/clsConfiguration.h"
#include "runtime/DefaultText.h"

std::shared_ptr<ado::Connection> gConnection;
std::unique_ptr<MainForm> gMainForm;
QString gHomeAddress;

QString GetDataPath() {
  clsConfiguration settings;
  settings.setFileName(settingsFile());
  settings.setGroup(QStringLiteral("DATA"));
  return settings.GetItem(QStringLiteral("PATH"));
}

QString FormatShortTime(const QDateTime& value) {
  return runtime::isZero(value) ? QString() : runtime::shortTimeText(value.time());
}
