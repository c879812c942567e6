#include "ado/RowValues.h"

#include <algorithm>

namespace ado {

namespace {

constexpr qsizetype blockSize = 1 << 16;
/// What is longer has a block of its own, so that little room is lost.
constexpr qsizetype longest = blockSize / 16;

}  // namespace

QByteArrayView RowValues::kept(QByteArrayView bytes) {
  const qsizetype size = bytes.size();
  if (size > longest) {
    const auto& block = m_blocks.emplace_back(std::make_unique_for_overwrite<char[]>(size));
    std::copy(bytes.begin(), bytes.end(), block.get());
    return {block.get(), size};
  }
  if (size > m_room || m_free == nullptr) {
    m_free = m_blocks.emplace_back(std::make_unique_for_overwrite<char[]>(blockSize)).get();
    m_room = blockSize;
  }
  char* start = m_free;
  m_free = std::copy(bytes.begin(), bytes.end(), start);
  m_room -= size;
  return {start, size};
}

RowValues::Cell RowValues::kept(const QVariant& value) {
  switch (value.typeId()) {
    case QMetaType::UnknownType:
      return {};
    case QMetaType::Nullptr:
      return nullptr;
    case QMetaType::Int:
    case QMetaType::LongLong:
      return value.toLongLong();
    case QMetaType::Double:
      return value.toDouble();
    case QMetaType::QByteArray:
      return Binary{kept(QByteArrayView(value.toByteArray()))};
    default:
      return Text{kept(QByteArrayView(value.toString().toUtf8()))};
  }
}

QVariant RowValues::value(std::size_t index) const {
  const auto stored = [](const auto& cell) -> QVariant {
    using Type = std::decay_t<decltype(cell)>;
    if constexpr (std::is_same_v<Type, std::monostate>) {
      return {};
    } else if constexpr (std::is_same_v<Type, Text>) {
      return QString::fromUtf8(cell.utf8);
    } else if constexpr (std::is_same_v<Type, Binary>) {
      return QByteArray(cell.bytes.data(), cell.bytes.size());
    } else {
      return QVariant::fromValue(cell);
    }
  };
  return std::visit(stored, m_cells[index]);
}

std::optional<QByteArrayView> RowValues::text(std::size_t index) const {
  const Text* text = std::get_if<Text>(&m_cells[index]);
  return text == nullptr ? std::nullopt : std::optional(text->utf8);
}

bool RowValues::isLeftInDatabase(std::size_t index) const {
  return std::holds_alternative<std::nullptr_t>(m_cells[index]);
}

}  // namespace ado
