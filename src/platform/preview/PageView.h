#pragma once

#include <QAbstractScrollArea>
#include <QElapsedTimer>

#include "preview/PageLayout.h"
#include "preview/TileCache.h"
#include "preview/TileGrid.h"
#include "preview/Zoom.h"
#include "report/Document.h"
#include "report/PagePainter.h"

namespace preview {

/// Shows the pages of a document below each other. A page is painted when it comes into view, into a bounded
/// cache at the screen's own pixels; until then it is white paper. Pages are counted from 0.
class PageView : public QAbstractScrollArea {
  Q_OBJECT

 public:
  explicit PageView(report::Document document, QWidget* parent = nullptr);

  [[nodiscard]] const report::Document& document() const { return m_document; }
  /// The page that the reader looks at: the one gone to last, after scrolling the one in the view.
  [[nodiscard]] int currentPage() const { return m_current; }
  /// Scrolls so that the page starts at the top of the view. An index outside is taken to the nearest page.
  void goToPage(int index);

  [[nodiscard]] Zoom zoom() const { return m_zoom; }
  /// What pages are shown at, in percent of their true size, whatever the zoom.
  [[nodiscard]] double shownPercent() const;
  /// The place in the middle of the view stays there.
  void setZoom(const Zoom& zoom);
  void zoomIn();
  void zoomOut();

  /// The pages that have been painted and are still kept.
  [[nodiscard]] const TileCache& cache() const { return m_cache; }
  [[nodiscard]] const PageLayout& layout() const { return m_layout; }

 signals:
  void currentPageChanged(int index);
  void zoomChanged();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  void arrange();
  void setZoomAround(const Zoom& zoom, QPoint place);
  [[nodiscard]] double pixelsPerTwip() const;
  [[nodiscard]] QPoint scrolled() const;
  void setCurrent(int index);

  void matchDevice();
  void reserveCache(int first, int last);
  void paintFrame(QPainter& painter, int index) const;
  [[nodiscard]] bool paintTiles(QPainter& painter, int index, const QElapsedTimer& since);
  const QImage* paintTile(int index, int tile);
  void paintNothingToShow(QPainter& painter) const;
  [[nodiscard]] QRect deviceRect(int index) const;
  [[nodiscard]] QRect deviceViewport() const;

  report::Document m_document;
  report::DecodingPictureSource m_pictures;
  Zoom m_zoom{Zoom::Fit::Width, 100};
  PageLayout m_layout;
  TileGrid m_grid;
  TileCache m_cache;
  double m_cachedRatio = 0;
  int m_current = 0;
  int m_wheel = 0;
  int m_paintedInFrame = 0;
  bool m_arranging = false;
};

}  // namespace preview
