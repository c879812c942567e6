#pragma once

#include <memory>
#include <vector>

#include "cli/Command.h"

namespace cli {

/// A fresh object of every command, in the order of the help.
[[nodiscard]] std::vector<std::unique_ptr<Command>> makeCommands();

}  // namespace cli
