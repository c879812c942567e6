#pragma once

#include <memory>
#include <optional>
#include <vector>

#include <QString>
#include <QStringList>

#include "cli/Command.h"

namespace cli {

/// Reads the arguments of the process and runs the command that they name.
class CommandLine {
 public:
  /// `version` is what --version says.
  explicit CommandLine(const QString& version);

  /// Reads `arguments` (without the program's name). Gives the exit code when there is nothing to run: help
  /// was asked for, or the arguments are wrong.
  [[nodiscard]] std::optional<int> parse(const QStringList& arguments, const Streams& streams);
  /// Whether the command needs a QGuiApplication. Valid after parse gave nothing.
  [[nodiscard]] bool drawsPictures() const { return m_chosen->drawsPictures(); }
  /// Runs the command in the home it was given and returns the exit code. Valid after parse gave nothing.
  [[nodiscard]] int run(const Streams& streams);

 private:
  QString m_version;
  std::vector<std::unique_ptr<Command>> m_commands;
  Command* m_chosen = nullptr;
  QString m_home;
};

}  // namespace cli
