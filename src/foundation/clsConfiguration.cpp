#include "foundation/clsConfiguration.h"

#include <array>
#include <optional>

#include "profile/Profile.h"
#include "runtime/CodePage.h"
#include "runtime/ProgramDirectory.h"

QString clsConfiguration::GetItem(const QString& key) const {
  const std::optional<QByteArray> group = runtime::toCodePage(m_group);
  const std::optional<QByteArray> name = runtime::toCodePage(key);
  if (!group || !name) return {};
  std::array<char, 255> buffer{};
  const int size = profile::GetPrivateProfileStringA(*group, *name, {}, buffer.data(),
                                                     static_cast<int>(buffer.size()), m_fileName);
  return runtime::fromCodePage(QByteArray(buffer.data(), size));
}

bool clsConfiguration::SetItem(const QString& key, const QString& value) const {
  const std::optional<QByteArray> group = runtime::toCodePage(m_group);
  const std::optional<QByteArray> name = runtime::toCodePage(key);
  const std::optional<QByteArray> text = runtime::toCodePage(value);
  return group && name && text && profile::WritePrivateProfileStringA(*group, *name, *text, m_fileName);
}

QString settingsFile() {
  return runtime::appFile(QStringLiteral("attendance.ini"));
}
