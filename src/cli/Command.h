#pragma once

#include <vector>

#include <QString>
#include <QTextStream>

#include "cli/Option.h"

namespace cli {

/// What the process returns. Part of the programs' contract with scripts.
enum ExitCode : int { Done = 0, Failed = 1, Usage = 2 };

/// Where a command writes: results to `out`, everything else to `err`.
struct Streams {
  QTextStream& out;
  QTextStream& err;
};

/// One command of the command line. An object runs once: its options land in its members.
class Command {
 public:
  Command() = default;
  Command(const Command&) = delete;
  Command& operator=(const Command&) = delete;
  virtual ~Command() = default;

  [[nodiscard]] virtual QString name() const = 0;
  /// One line for the list of commands, also the head of the command's own help.
  [[nodiscard]] virtual QString summary() const = 0;
  /// What the command takes, bound to its members.
  [[nodiscard]] virtual std::vector<Option> options() { return {}; }
  /// What is wrong with the options taken together; empty when all is well. Called after they were read.
  [[nodiscard]] virtual QString usageFault() const { return {}; }
  /// Whether a QGuiApplication must exist while the command runs.
  [[nodiscard]] virtual bool drawsPictures() const { return false; }
  /// Whether the program directory must be named by --home or ATTENDANCE_HOME.
  [[nodiscard]] virtual bool needsNamedHome() const { return false; }

  /// Does the work on the home in runtime::AppPath() and returns an ExitCode. What it throws as
  /// runtime::RuntimeError is told on `err` by the caller and counts as Failed.
  [[nodiscard]] virtual int run(const Streams& streams) = 0;
};

}  // namespace cli
