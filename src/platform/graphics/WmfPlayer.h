#pragma once

#include <array>
#include <optional>
#include <variant>
#include <vector>

#include "graphics/MetafileCanvas.h"
#include "graphics/MetafileRecord.h"

namespace graphics {

/// Draws the records of a Windows metafile. Where the picture lies on the device is its holder's affair, so
/// records about the viewport and the device's units are left out like unknown ones.
class WmfPlayer {
 public:
  WmfPlayer(QSize size, QRect window) : m_canvas(size, window) {}

  /// Draws one record; nothing when it is too short for what it should say.
  void play(const MetafileRecord& record);
  [[nodiscard]] QImage finish() { return m_canvas.finish(); }

 private:
  /// A palette, region or old pattern takes its place in the table without being drawn with.
  using Object = std::variant<std::monostate, MetafilePen, QBrush, MetafileFont>;

  /// Where a record keeps what it says of an image, in words.
  struct ImageWords {
    /// Of x, y, width and height.
    std::array<qsizetype, 4> source;
    qsizetype box;
    qsizetype bitmap;
  };

  bool playSetting(const MetafileRecord& record);
  bool playObject(const MetafileRecord& record);
  bool playShape(const MetafileRecord& record);
  bool playPicture(const MetafileRecord& record);
  bool playText(const MetafileRecord& record);
  void offsetWindow(QPoint offset);
  void setWindowExtent(QPoint extent);
  void create(Object object);
  void select(int index);
  void remove(int index);
  void arc(const MetafileRecord& record, MetafileCanvas::Closing closing);
  void polyPolygon(const MetafileRecord& record);
  void extendedText(const MetafileRecord& record);
  void fillPattern(const MetafileRecord& record);
  /// The list of advances behind a text, one a character; empty when the record has none.
  [[nodiscard]] std::vector<int> advancesOf(const MetafileRecord& record, qsizetype textAt, int length) const;
  [[nodiscard]] bool isChinese() const;
  [[nodiscard]] QString decoded(QByteArrayView bytes) const;
  void image(const MetafileRecord& record, const ImageWords& words);

  MetafileCanvas m_canvas;
  /// Nothing in a free place.
  std::vector<std::optional<Object>> m_objects;
};

}  // namespace graphics
