#pragma once

#include <QString>

/// Throws runtime::RuntimeError when writing to `path` would destroy a file that the program lives on: the
/// database and its journal, the settings, the card's logo, or a place where photo files come and go.
void refuseOwnFile(const QString& path);
