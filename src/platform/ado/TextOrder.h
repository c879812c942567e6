#pragma once

#include <QString>

namespace ado {

/// Orders texts as the columns of our tables do: letter case, the width of characters and the difference
/// between hiragana and katakana do not count. For collections that must find what the database would find.
struct TextOrder {
  [[nodiscard]] bool operator()(const QString& a, const QString& b) const;
};

}  // namespace ado
