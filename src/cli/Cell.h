#pragma once

#include <QString>

namespace cli {

/// `text` as one cell of a table: a tab or a new line inside it must not look like a new column or row.
[[nodiscard]] QString cell(QString text);

}  // namespace cli
