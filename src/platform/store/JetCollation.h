#pragma once

#include <string_view>

/// The order of texts in the columns of our tables, known to the engine as the collation JET. It ignores
/// letter case, the width of characters and the difference between hiragana and katakana; accents count.
/// Indices are stored in this order: its table never changes.
namespace store {

/// The name that the tables' declarations use.
inline constexpr char jetCollationName[] = "JET";

/// Less than, equal to or greater than zero, as UTF-8 text `a` comes before, with or behind `b`.
[[nodiscard]] int compareJet(std::string_view a, std::string_view b);

}  // namespace store
