#include "ui/SystemInfo.h"

#include "dialogs/Dialogs.h"
#include "runtime/ProgramDirectory.h"
#include "shell/Registry.h"
#include "ui/ProgramTitle.h"

namespace {

/// Full path of the tool, nothing when the registry names none.
std::optional<QString> toolPath() {
  constexpr auto root = shell::RootKey::LocalMachine;
  if (auto path = GetKeyValue(root, QStringLiteral("SOFTWARE\\Microsoft\\Shared Tools\\MSINFO"),
                              QStringLiteral("PATH"))) {
    return path;
  }
  const auto folder = GetKeyValue(root, QStringLiteral("SOFTWARE\\Microsoft\\Shared Tools Location"),
                                  QStringLiteral("MSINFO"));
  if (!folder) return std::nullopt;
  const QString tool = runtime::nativePath(*folder + QStringLiteral("\\MSINFO32.EXE"));
  return runtime::isNormalFile(tool) ? std::optional(tool) : std::nullopt;
}

}  // namespace

std::optional<QString> GetKeyValue(shell::RootKey root, const QString& key, const QString& value) {
  const std::optional<shell::RegistryValue> found = shell::registryValue(root, key, value);
  if (!found) return std::nullopt;
  const auto* number = std::get_if<std::uint32_t>(&*found);
  return number ? QString::number(*number) : std::get<QString>(*found);
}

void StartSysInfo() {
  const std::optional<QString> tool = toolPath();
  if (tool && shell::startProgram(*tool)) return;
  dialogs::MsgBox(QStringLiteral("此时系统信息不可用"), dialogs::OkOnly, programTitle);
}
