#pragma once

#include "cli/Command.h"
#include "exchange/RosterImport.h"

namespace cli {

/// Brings the employees of a CSV file in, with their pictures from a folder.
class ImportRosterCommand : public Command {
 public:
  [[nodiscard]] QString name() const override { return QStringLiteral("import-roster"); }
  [[nodiscard]] QString summary() const override;
  [[nodiscard]] std::vector<Option> options() override;
  [[nodiscard]] QString usageFault() const override;
  [[nodiscard]] bool drawsPictures() const override { return !m_template; }
  [[nodiscard]] int run(const Streams& streams) override;

 private:
  [[nodiscard]] int writeTemplate(const Streams& streams) const;
  [[nodiscard]] int import(RosterCheck& check, const Streams& streams) const;

  QString m_file;
  QString m_photos;
  bool m_dryRun = false;
  bool m_template = false;
  RosterOptions m_options;
};

}  // namespace cli
