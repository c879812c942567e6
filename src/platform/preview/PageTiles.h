#pragma once

#include <QElapsedTimer>
#include <QPainter>

#include "preview/TileCache.h"
#include "preview/TileGrid.h"
#include "report/PagePainter.h"

namespace preview {

/// The pixels of a document's pages: painted when they are asked for, kept in a bounded cache. All numbers
/// are device pixels.
class PageTiles {
 public:
  explicit PageTiles(report::Document document);

  /// Sets how large a page is; what was painted at another size is forgotten.
  void setPageSize(QSize page);
  [[nodiscard]] QSize pageSize() const { return m_grid.page(); }
  /// The bytes of the tiles of a page that `seen` (a part of that page) touches.
  [[nodiscard]] qsizetype bytesOf(const QRect& seen) const;
  /// Starts a frame in which tiles of `bytes` are seen together.
  void beginFrame(qsizetype bytes);
  /// Draws the tiles of page `index` that `seen` touches, the page's corner standing at `corner`; false when
  /// some were put off to the next frame because this one has taken long enough: they stay white.
  [[nodiscard]] bool draw(QPainter& painter, int index, QPoint corner, const QRect& seen);

  [[nodiscard]] const TileCache& cache() const { return m_cache; }

 private:
  const QImage* paint(int index, int tile);

  report::Document m_document;
  report::DecodingPictureSource m_pictures;
  TileGrid m_grid;
  TileCache m_cache;
  QElapsedTimer m_frame;
  int m_paintedInFrame = 0;
};

}  // namespace preview
