#pragma once

#include <cstdint>

#include <QString>

/// The key of the list row of the record with that identifier: "KEYPRE" and the identifier, so that a key is
/// never purely numeric.
[[nodiscard]] QString MakeItemKey(const QString& identifier);
/// The identifier in a row's key: everything from the 7th character on.
[[nodiscard]] QString ItemIdentifier(const QString& key);
/// The department's number that an identifier stands for. Throws runtime::RuntimeError naming the identifier
/// when it is no 16-bit number.
[[nodiscard]] std::int16_t DeptNumber(const QString& identifier);
