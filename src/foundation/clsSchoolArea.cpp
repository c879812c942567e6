#include "foundation/clsSchoolArea.h"

#include "foundation/clsConfiguration.h"

namespace {

clsConfiguration unitSettings() {
  clsConfiguration settings;
  settings.setFileName(settingsFile());
  settings.setGroup(QStringLiteral("UNIT"));
  return settings;
}

}  // namespace

clsSchoolArea::clsSchoolArea() {
  LoadInfo();
}

bool clsSchoolArea::LoadInfo() {
  m_name = unitSettings().GetItem(QStringLiteral("UNITNAME"));
  return true;
}

bool clsSchoolArea::SaveInfo() const {
  return unitSettings().SetItem(QStringLiteral("UNITNAME"), m_name);
}
