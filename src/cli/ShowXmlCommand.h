#pragma once

#include "cli/Command.h"

namespace cli {

/// Prints the columns and the rows of an XML file with records, as a table or as JSON, row after row.
class ShowXmlCommand : public Command {
 public:
  [[nodiscard]] QString name() const override { return QStringLiteral("show-xml"); }
  [[nodiscard]] QString summary() const override;
  [[nodiscard]] std::vector<Option> options() override;
  [[nodiscard]] int run(const Streams& streams) override;

 private:
  QString m_file;
  bool m_json = false;
};

}  // namespace cli
