#pragma once

#include "cli/Command.h"

namespace cli {

/// Copies the database while programs work with it, and tries the copy.
class BackupCommand : public Command {
 public:
  [[nodiscard]] QString name() const override { return QStringLiteral("backup"); }
  [[nodiscard]] QString summary() const override;
  [[nodiscard]] std::vector<Option> options() override;
  [[nodiscard]] int run(const Streams& streams) override;

 private:
  QString m_out;
};

}  // namespace cli
