#pragma once

#include <memory>

#include "ado/Connection.h"

namespace cli {

/// The shared connection, opened now. Throws ado::AdoError that says why the database cannot be opened.
[[nodiscard]] std::shared_ptr<ado::Connection> openDatabase();
/// The number in the first column of the first row of `query`.
[[nodiscard]] int countOf(const std::shared_ptr<ado::Connection>& connection, const QString& query);

}  // namespace cli
