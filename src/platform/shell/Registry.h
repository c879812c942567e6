#pragma once

#include <cstdint>
#include <optional>
#include <variant>

#include <QString>

#include "shell/Shell.h"

namespace shell {

/// A text or a 32-bit number.
using RegistryValue = std::variant<QString, std::uint32_t>;

/// The value `name` of the registry key `key`. The registry is a UTF-8 text file of at most 64 KiB: the keys
/// are groups named in full, `[SOFTWARE\Example]`, the values are lines `NAME=text`; a number stands as
/// `dword:` and its hexadecimal digits. Names compare without regard to case, lines that begin with `;` or
/// `#` are skipped. Nothing for a value that is not there or is no number behind `dword:`, and for a file
/// that is missing, too large, not UTF-8 or cannot be read.
[[nodiscard]] std::optional<RegistryValue> registryValue(RootKey root, const QString& key,
                                                         const QString& name);

}  // namespace shell
