#pragma once

#include <variant>

#include <QString>
#include <QStringList>

namespace cli {

/// Something that a command takes. The type of `target` says what: a flag, a whole number, a text, a list of
/// texts.
struct Option {
  /// `--out` for an option, `NUMBER` for an argument known by its place.
  QString name{};
  /// What the help calls the value; empty for a flag.
  QString valueName{};
  QString help{};
  /// Where the value goes; what stands there before is the default. Must outlive the parsing.
  std::variant<bool*, int*, QString*, QStringList*> target{};
  bool required = false;
  /// Bounds of a whole number.
  int least = 0;
  int most = 0;
};

}  // namespace cli
