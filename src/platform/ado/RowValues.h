#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <variant>
#include <vector>

#include <QByteArrayView>
#include <QVariant>

namespace ado {

/// Values in stored form, one behind the other. Texts and binaries lie together in large blocks: a result of
/// thousands of rows would otherwise be as many small allocations as it has texts.
class RowValues {
 public:
  /// Appends a value: invalid for Null, nullptr for one that is left in the database, else qlonglong, double,
  /// QString or QByteArray.
  void append(const QVariant& value) { m_cells.push_back(kept(value)); }
  void appendText(QByteArrayView utf8) { m_cells.emplace_back(Text{kept(utf8)}); }
  /// Appends `count` Nulls.
  void appendNulls(std::size_t count) { m_cells.resize(m_cells.size() + count); }
  void set(std::size_t index, const QVariant& value) { m_cells[index] = kept(value); }

  /// The value, as it was appended.
  [[nodiscard]] QVariant value(std::size_t index) const;
  /// The value of a text, in UTF-8; none for other values. Valid as long as this object.
  [[nodiscard]] std::optional<QByteArrayView> text(std::size_t index) const;
  [[nodiscard]] bool isLeftInDatabase(std::size_t index) const;

 private:
  struct Text {
    QByteArrayView utf8;
  };
  struct Binary {
    QByteArrayView bytes;
  };
  using Cell = std::variant<std::monostate, std::nullptr_t, qlonglong, double, Text, Binary>;

  [[nodiscard]] Cell kept(const QVariant& value);
  [[nodiscard]] QByteArrayView kept(QByteArrayView bytes);

  std::vector<Cell> m_cells;
  std::vector<std::unique_ptr<char[]>> m_blocks;
  /// The free end of the last block.
  char* m_free = nullptr;
  qsizetype m_room = 0;
};

}  // namespace ado
