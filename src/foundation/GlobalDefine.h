#pragma once

#include <memory>

#include <QDateTime>
#include <QString>

#include "ado/Connection.h"
#include "foundation/MainForm.h"

/// The shared connection of every record class; empty until the first operation opens it.
extern std::shared_ptr<ado::Connection> gConnection;
/// The main window, set by Main.
extern std::unique_ptr<MainForm> gMainForm;
/// The maker's web site, a bare host name.
extern QString gHomeAddress;

/// The directory of the database as the settings name it, not normalised; empty when not set.
[[nodiscard]] QString GetDataPath();
/// Hours and minutes of `value`, empty for the zero date-time.
[[nodiscard]] QString FormatShortTime(const QDateTime& value);
