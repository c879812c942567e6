#pragma once

#include <QAbstractScrollArea>

#include "preview/PageGrid.h"
#include "preview/PageLayout.h"
#include "preview/PageMark.h"
#include "preview/PageTiles.h"
#include "preview/Zoom.h"
#include "report/Document.h"

namespace preview {

/// Shows the pages of a document below each other, or several in a row. A page is painted when it comes into
/// view, into a bounded cache at the screen's own pixels; until then it is white paper. Pages are counted
/// from 0.
class PageView : public QAbstractScrollArea {
  Q_OBJECT

 public:
  explicit PageView(report::Document document, QWidget* parent = nullptr);

  [[nodiscard]] const report::Document& document() const { return m_document; }
  /// The page that the reader looks at: the one gone to last, after scrolling the one in the view.
  [[nodiscard]] int currentPage() const { return m_current; }
  /// Scrolls so that the page starts at the top of the view. An index outside is taken to the nearest page.
  void goToPage(int index);
  /// Goes to the page and scrolls no further than `box` (twips on the page) needs to be seen.
  void reveal(int index, const QRectF& box);

  [[nodiscard]] Zoom zoom() const { return m_zoom; }
  /// What pages are shown at, in percent of their true size, whatever the zoom.
  [[nodiscard]] double shownPercent() const;
  /// The place in the middle of the view stays there.
  void setZoom(const Zoom& zoom);
  void zoomIn();
  void zoomOut();

  /// Who says what is highlighted on a page. Call it again when that changed.
  void setMarks(PageMarks marks);

  /// The pages that have been painted and are still kept.
  [[nodiscard]] const TileCache& cache() const { return m_tiles.cache(); }
  [[nodiscard]] const PageLayout& layout() const { return m_layout; }

 signals:
  void currentPageChanged(int index);
  void zoomChanged();
  /// One of several pages was clicked, and double-clicked.
  void pageClicked(int index);
  void pageOpened(int index);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void wheelEvent(QWheelEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  void arrange();
  void setZoomAround(const Zoom& zoom, QPoint place);
  [[nodiscard]] double pixelsPerTwip() const;
  [[nodiscard]] PageGrid grid() const;
  [[nodiscard]] QPoint scrolled() const;
  void scrollTo(QPoint place);
  void setCurrent(int index);
  void followScrolling();
  /// Whether the page is one of several in a row and seen as it is.
  [[nodiscard]] bool staysAmongSeveral(int index) const;
  [[nodiscard]] int severalPageAt(const QMouseEvent& event) const;

  void matchDevice();
  [[nodiscard]] qsizetype bytesSeen(int first, int last) const;
  void paintBackground(QPainter& painter, int first, int last) const;
  void paintFrame(QPainter& painter, int index) const;
  void paintMarks(QPainter& painter, int index) const;
  void paintNothingToShow(QPainter& painter) const;
  [[nodiscard]] QRect deviceRect(int index) const;
  [[nodiscard]] QRect seenOf(const QRect& devicePage) const;

  report::Document m_document;
  Zoom m_zoom{Zoom::Fit::Width, 100};
  PageLayout m_layout;
  PageTiles m_tiles;
  PageMarks m_marks;
  double m_ratio = 1;
  int m_current = 0;
  int m_wheel = 0;
  int m_pressed = -1;
  bool m_arranging = false;
};

}  // namespace preview
