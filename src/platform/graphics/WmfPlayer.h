#pragma once

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
  /// A palette, region or pattern takes its place in the table without being drawn with.
  using Object = std::variant<std::monostate, MetafilePen, QBrush, MetafileFont>;
  struct Slot {
    bool used = false;
    Object object;
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
  [[nodiscard]] QString decoded(QByteArrayView bytes) const;
  void image(const MetafileRecord& record, qsizetype boxAt, qsizetype bitmapAt);

  MetafileCanvas m_canvas;
  std::vector<Slot> m_objects;
};

}  // namespace graphics
