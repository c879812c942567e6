#include "cli/Commands.h"

#include "cli/BackupCommand.h"
#include "cli/CardsCommand.h"
#include "cli/CheckCommand.h"
#include "cli/DemoCommand.h"
#include "cli/EmployeeXmlCommand.h"
#include "cli/ExportCommand.h"
#include "cli/ImportCommand.h"
#include "cli/ImportRosterCommand.h"
#include "cli/InitCommand.h"
#include "cli/ListCommand.h"
#include "cli/MonthCommand.h"
#include "cli/RemoveCommand.h"
#include "cli/ShowXmlCommand.h"
#include "cli/SignCommand.h"
#include "cli/TodayCommand.h"

namespace cli {

namespace {

template <typename Kind>
std::unique_ptr<Command> make() {
  return std::make_unique<Kind>();
}

using Maker = std::unique_ptr<Command> (*)();
constexpr Maker makers[] = {
    make<InitCommand>,        make<DemoCommand>,   make<ImportRosterCommand>, make<ImportCommand>,
    make<EmployeeXmlCommand>, make<ExportCommand>, make<ShowXmlCommand>,      make<ListCommand>,
    make<CardsCommand>,       make<MonthCommand>,  make<SignCommand>,         make<TodayCommand>,
    make<RemoveCommand>,      make<BackupCommand>, make<CheckCommand>,
};

}  // namespace

std::vector<std::unique_ptr<Command>> makeCommands() {
  std::vector<std::unique_ptr<Command>> commands;
  commands.reserve(std::size(makers));
  for (const Maker maker : makers) commands.push_back(maker());
  return commands;
}

}  // namespace cli
