#pragma once

#include <QString>

namespace store {

enum class StatementUse {
  /// SELECT, or EXPLAIN of one.
  Query,
  /// INSERT, UPDATE, DELETE, and what makes and changes tables.
  Change,
};

/// Turns a statement of the programs into the engine's dialect: a date between number signs becomes the text
/// that dates are stored as, a semicolon at the end goes, all else stays as it is. Throws StoreError for what
/// tokens() refuses, a date that does not exist and a statement of another use.
[[nodiscard]] QString translated(const QString& sql, StatementUse use);

/// How often `sql` (in either dialect) names the table itself, not as the qualifier of a column.
[[nodiscard]] int mentions(const QString& sql, const QString& table);

/// `name` as an identifier of the engine's dialect, whatever characters it holds.
[[nodiscard]] QString quotedName(const QString& name);

}  // namespace store
