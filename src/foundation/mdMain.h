#pragma once

#include <functional>
#include <memory>

#include <QString>

#include "foundation/MainForm.h"

/// Makes the main window.
using MainFormFactory = std::function<std::unique_ptr<MainForm>()>;

/// Start-up: refuses to run without the database file, with a message box and a line on standard error that
/// names the path looked for; otherwise makes and shows the main window. Returns whether the program runs on.
[[nodiscard]] bool Main(const MainFormFactory& makeMainForm);
/// Whether the database file named by the settings is there; path of the file looked for in databaseFile().
[[nodiscard]] bool CheckDatabaseFile();
/// The path where the database is looked for, with this system's separators.
[[nodiscard]] QString databaseFile();
/// Sets gHomeAddress.
void SetHomeAddress();
