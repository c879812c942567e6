#pragma once

#include <optional>

#include <QString>

#include "shell/Shell.h"

/// The registry's value as text, a number as decimal digits; nothing when it cannot be read.
[[nodiscard]] std::optional<QString> GetKeyValue(shell::RootKey root, const QString& key,
                                                 const QString& value);
/// Starts the machine's system-information tool without waiting for it. The user is told when none can be
/// started.
void StartSysInfo();
