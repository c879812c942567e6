#include "preview/PageTiles.h"

#include "preview/PageImage.h"

namespace preview {

namespace {

// A frame that paints longer than this shows what it has and goes on in the next one.
constexpr int sliceMilliseconds = 25;
// The photos of some pages: those around the one that is read are wanted again at another zoom.
constexpr qsizetype photoBytes = qsizetype{8} * 1024 * 1024;

}  // namespace

PageTiles::PageTiles(report::Document document) : m_document(std::move(document)), m_pictures(photoBytes) {}

void PageTiles::setPageSize(QSize page) {
  if (page == m_grid.page()) return;
  m_cache.clear();
  m_grid = TileGrid(page);
}

qsizetype PageTiles::bytesOf(const QRect& seen) const {
  qsizetype bytes = 0;
  for (const int tile : m_grid.touchedBy(seen)) {
    bytes += qsizetype{4} * m_grid.rect(tile).width() * m_grid.rect(tile).height();
  }
  return bytes;
}

void PageTiles::beginFrame(qsizetype bytes) {
  m_cache.makeRoomFor(bytes);
  m_frame.start();
  m_paintedInFrame = 0;
}

bool PageTiles::draw(QPainter& painter, int index, QPoint corner, const QRect& seen) {
  bool complete = true;
  for (const int tile : m_grid.touchedBy(seen)) {
    const QImage* image = m_cache.find({index, tile});
    // The first one is painted however late it is, or a slow screen would never get anywhere.
    if (!image && (m_paintedInFrame == 0 || !m_frame.hasExpired(sliceMilliseconds))) {
      image = paint(index, tile);
      ++m_paintedInFrame;
    }
    const QRect place = m_grid.rect(tile).translated(corner);
    if (image) {
      painter.drawImage(place.topLeft(), *image);
    } else {
      painter.fillRect(place, Qt::white);
      complete = false;
    }
  }
  return complete;
}

const QImage* PageTiles::paint(int index, int tile) {
  return m_cache.insert({index, tile},
                        pageImage(m_document, index, m_grid.page(), m_grid.rect(tile), m_pictures));
}

}  // namespace preview
