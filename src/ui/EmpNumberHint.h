#pragma once

#include <QString>

/// What the user should know before giving `number`, without blanks around it, to a new employee: it cannot
/// be stored, cannot be a file name, is in use, or has sign-in records of somebody before; empty when there
/// is nothing to say. Throws runtime::RuntimeError when the database cannot be asked.
[[nodiscard]] QString empNumberHint(const QString& number);
