#pragma once

#include <vector>

#include <QString>

namespace store {

enum class TokenKind {
  Word,
  /// Between double quotes, grave accents or brackets; `text` still has them.
  QuotedName,
  /// Between single quotes; `text` still has them.
  String,
  /// Between number signs; `text` is what stands between.
  Date,
  Number,
  Symbol,
};

/// A piece of a statement; `position` is where it begins in the statement.
struct Token {
  TokenKind kind;
  QStringView text;
  qsizetype position;
};

/// Cuts a statement into its pieces, without the blanks between. The pieces look into `sql`, which must live
/// as long as they. Throws StoreError for a comment, a NUL, a literal without end, a parameter and anything
/// but blanks behind a semicolon; a semicolon at the end is left out.
[[nodiscard]] std::vector<Token> tokens(const QString& sql);

/// Whether the token names `name`, quoted or not, without regard to letter case.
[[nodiscard]] bool names(const Token& token, const QString& name);

}  // namespace store
