#pragma once

#include <QString>

/// What the program calls itself before its user.
inline const QString programTitle = QStringLiteral("签到系统");
