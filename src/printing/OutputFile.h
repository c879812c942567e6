#pragma once

#include <QString>

/// Throws runtime::RuntimeError when writing to `path` would destroy a file that the program lives on: the
/// database and what the engine puts beside it, the settings, the help, the card's logo, or a place where
/// photo files come and go. Links count as what they lead to. The programs install it as the guard of
/// runtime/OutputGuard.h.
void refuseOwnFile(const QString& path);
