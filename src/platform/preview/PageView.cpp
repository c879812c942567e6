#include "preview/PageView.h"

#include <algorithm>
#include <cmath>

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTimer>
#include <QWheelEvent>

#include "graphics/Twips.h"

namespace preview {

namespace {

constexpr int wheelNotch = 120;
constexpr int lineStep = 40;
/// Pixels that stay free around a place that is scrolled to.
constexpr int revealMargin = 40;
constexpr QColor markColor(255, 236, 120);
constexpr QColor currentMarkColor(255, 172, 80);

/// Never more pixels than fit: several pages in a row would add up to a scroll bar.
QSize pixelSize(QSize twips, double pixelsPerTwip) {
  constexpr double lostInDivision = 1e-6;
  const QSizeF pixels = QSizeF(twips) * pixelsPerTwip;
  return {static_cast<int>(pixels.width() + lostInDivision),
          static_cast<int>(pixels.height() + lostInDivision)};
}

/// Where to scroll to from `scroll` so that `from` to `to` comes into a view of `length`.
int scrolledInto(int scroll, int from, int to, int length) {
  if (from >= scroll && to <= scroll + length) return scroll;
  return (from + to - length) / 2;
}

}  // namespace

PageView::PageView(report::Document document, QWidget* parent)
    : QAbstractScrollArea(parent), m_document(std::move(document)), m_tiles(m_document) {
  // A bar that comes and goes would change the width that the pages are fitted to.
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::StrongFocus);
  setAccessibleName(QStringLiteral("页面"));
  viewport()->setAutoFillBackground(false);
  viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
  arrange();
}

double PageView::pixelsPerTwip() const {
  const double whole = static_cast<double>(logicalDpiX()) / graphics::twipsPerInch;
  // The size without a horizontal bar, which only a percentage can need.
  const QSize view = maximumViewportSize();
  const QSize paper = m_document.paperSize();
  double wanted = whole * m_zoom.percent / 100;
  if (m_zoom.fit == Zoom::Fit::Width) {
    wanted = static_cast<double>(view.width() - 2 * PageLayout::gap) / paper.width();
  } else if (m_zoom.fit != Zoom::Fit::None) {
    wanted = pageWidthIn(grid(), view, paper) / paper.width();
  }
  return std::clamp(wanted, whole * 0.05, whole * largestPercent / 100);
}

PageGrid PageView::grid() const {
  if (m_zoom.fit != Zoom::Fit::Several) return {};
  return gridFor(maximumViewportSize(), m_document.paperSize(), m_document.pageCount());
}

double PageView::shownPercent() const {
  return pixelsPerTwip() * graphics::twipsPerInch / logicalDpiX() * 100;
}

void PageView::arrange() {
  if (m_document.pageCount() == 0) return;
  const QScopedValueRollback arranging(m_arranging, true);
  m_layout = PageLayout(m_document.pageCount(), pixelSize(m_document.paperSize(), pixelsPerTwip()),
                        viewport()->size(), grid().columns);
  const QSize content = m_layout.contentSize();
  const QSize view = viewport()->size();
  horizontalScrollBar()->setRange(0, content.width() - view.width());
  verticalScrollBar()->setRange(0, content.height() - view.height());
  horizontalScrollBar()->setPageStep(view.width());
  verticalScrollBar()->setPageStep(view.height());
  horizontalScrollBar()->setSingleStep(lineStep);
  verticalScrollBar()->setSingleStep(lineStep);
  matchDevice();
  viewport()->update();
}

QPoint PageView::scrolled() const {
  return {horizontalScrollBar()->value(), verticalScrollBar()->value()};
}

bool PageView::staysAmongSeveral(int index) const {
  // The rows that fill the view may be a few pixels higher than it.
  const int slack = PageLayout::gap;
  const QRect seen = QRect(scrolled(), viewport()->size()).adjusted(-slack, -slack, slack, slack);
  return m_layout.columns() > 1 && seen.contains(m_layout.pageRect(index));
}

void PageView::scrollTo(QPoint place) {
  const QScopedValueRollback arranging(m_arranging, true);
  horizontalScrollBar()->setValue(place.x());
  verticalScrollBar()->setValue(place.y());
}

void PageView::setCurrent(int index) {
  if (index == m_current) return;
  m_current = index;
  // Among several pages the current one is framed.
  if (m_layout.columns() > 1) viewport()->update();
  emit currentPageChanged(index);
}

void PageView::goToPage(int index) {
  if (m_document.pageCount() == 0) return;
  const int page = std::clamp(index, 0, m_document.pageCount() - 1);
  // The last pages cannot start at the top; they are gone to all the same.
  if (!staysAmongSeveral(page)) scrollTo({scrolled().x(), m_layout.scrollOf(page)});
  setCurrent(page);
}

void PageView::reveal(int index, const QRectF& box) {
  if (m_document.pageCount() == 0) return;
  const double scale = pixelsPerTwip();
  const QRect page = m_layout.pageRect(index);
  const QRect place =
      QRectF(box.topLeft() * scale, box.size() * scale).toAlignedRect().translated(page.topLeft());
  const QRect wanted = place.adjusted(-revealMargin, -revealMargin, revealMargin, revealMargin);
  const QSize view = viewport()->size();
  QRect seen(scrolled(), view);
  // A page that is not seen at all is shown from its top when that is enough.
  if (!seen.intersects(page)) seen.moveTop(m_layout.scrollOf(index));
  scrollTo({scrolledInto(seen.left(), wanted.left(), wanted.right(), view.width()),
            scrolledInto(seen.top(), wanted.top(), wanted.bottom(), view.height())});
  setCurrent(index);
}

void PageView::setMarks(PageMarks marks) {
  m_marks = std::move(marks);
  viewport()->update();
}

void PageView::setZoom(const Zoom& zoom) {
  setZoomAround(zoom, viewport()->rect().center());
}

void PageView::zoomIn() {
  setZoom({Zoom::Fit::None, percentAbove(shownPercent())});
}

void PageView::zoomOut() {
  setZoom({Zoom::Fit::None, percentBelow(shownPercent())});
}

void PageView::setZoomAround(const Zoom& zoom, QPoint place) {
  if (zoom == m_zoom) return;
  const int page = m_layout.pageNear(place + scrolled());
  const QRect before = m_layout.pageRect(page);
  const QPointF within = QPointF(place + scrolled() - before.topLeft());
  const double scale = pixelsPerTwip();
  // A page that is shown as a whole starts at the top; out of several pages the current one is taken.
  const bool fromTop =
      zoom.fit == Zoom::Fit::Page || zoom.fit == Zoom::Fit::Several || m_zoom.fit == Zoom::Fit::Several;
  m_zoom = zoom;
  arrange();
  const QPointF grown = within * (pixelsPerTwip() / scale);
  const QPoint target = (QPointF(m_layout.pageRect(page).topLeft()) + grown).toPoint() - place;
  scrollTo({target.x(), fromTop ? m_layout.scrollOf(m_current) : target.y()});
  const QRect seen(scrolled(), viewport()->size());
  if (!seen.intersects(m_layout.pageRect(m_current))) setCurrent(m_layout.currentPage(seen.top()));
  emit zoomChanged();
}

void PageView::resizeEvent(QResizeEvent* event) {
  QAbstractScrollArea::resizeEvent(event);
  if (m_document.pageCount() == 0) return;
  const QRect before = m_layout.pageRect(m_current);
  const double within = static_cast<double>(scrolled().y() - before.top()) / before.height();
  arrange();
  const QRect after = m_layout.pageRect(m_current);
  const QScopedValueRollback arranging(m_arranging, true);
  verticalScrollBar()->setValue(after.top() + static_cast<int>(std::lround(within * after.height())));
  if (m_zoom.fit != Zoom::Fit::None) emit zoomChanged();
}

void PageView::scrollContentsBy(int /*dx*/, int /*dy*/) {
  viewport()->update();
  if (!m_arranging) followScrolling();
}

void PageView::followScrolling() {
  // Among several pages the reader chose the current one: scrolling takes another only when it went away.
  if (!staysAmongSeveral(m_current)) setCurrent(m_layout.currentPage(scrolled().y()));
}

void PageView::wheelEvent(QWheelEvent* event) {
  if (!event->modifiers().testFlag(Qt::ControlModifier)) return QAbstractScrollArea::wheelEvent(event);
  m_wheel += event->angleDelta().y();
  const QPoint place = event->position().toPoint();
  if (m_zoom.fit == Zoom::Fit::Several) setCurrent(m_layout.pageNear(place + scrolled()));
  for (; m_wheel >= wheelNotch; m_wheel -= wheelNotch)
    setZoomAround({Zoom::Fit::None, percentAbove(shownPercent())}, place);
  for (; m_wheel <= -wheelNotch; m_wheel += wheelNotch)
    setZoomAround({Zoom::Fit::None, percentBelow(shownPercent())}, place);
  event->accept();
}

int PageView::severalPageAt(const QMouseEvent& event) const {
  if (m_zoom.fit != Zoom::Fit::Several || event.button() != Qt::LeftButton || m_layout.pageCount() == 0)
    return -1;
  const QPoint place = event.position().toPoint() + scrolled();
  const int page = m_layout.pageNear(place);
  return m_layout.pageRect(page).contains(place) ? page : -1;
}

void PageView::mousePressEvent(QMouseEvent* event) {
  m_pressed = severalPageAt(*event);
  if (m_pressed >= 0) emit pageClicked(m_pressed);
}

void PageView::mouseDoubleClickEvent(QMouseEvent* event) {
  // The first click may have scrolled another page below the pointer.
  if (severalPageAt(*event) >= 0 && m_pressed >= 0) emit pageOpened(m_pressed);
}

void PageView::matchDevice() {
  m_ratio = devicePixelRatioF();
  m_tiles.setPageSize((QSizeF(m_layout.pageSize()) * m_ratio).toSize());
}

QRect PageView::deviceRect(int index) const {
  const QPointF corner = QPointF(m_layout.pageRect(index).topLeft() - scrolled()) * m_ratio;
  return {corner.toPoint(), m_tiles.pageSize()};
}

QRect PageView::seenOf(const QRect& devicePage) const {
  const QRect view(QPoint(), (QSizeF(viewport()->size()) * m_ratio).toSize());
  return view.translated(-devicePage.topLeft());
}

qsizetype PageView::bytesSeen(int first, int last) const {
  qsizetype bytes = 0;
  for (int index = first; index <= last; ++index) bytes += m_tiles.bytesOf(seenOf(deviceRect(index)));
  return bytes;
}

void PageView::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(viewport());
  if (m_document.pageCount() == 0) return paintNothingToShow(painter);
  matchDevice();
  // Tiles are copied pixel by pixel: nothing may scale them, at fractional ratios neither.
  painter.scale(1 / m_ratio, 1 / m_ratio);
  const int first = m_layout.pageAt(scrolled().y());
  const int last = m_layout.lastPageAt(scrolled().y() + viewport()->height());
  paintBackground(painter, first, last);
  m_tiles.beginFrame(bytesSeen(first, last));
  bool complete = true;
  for (int index = first; index <= last; ++index) {
    const QRect page = deviceRect(index);
    paintFrame(painter, index);
    complete = m_tiles.draw(painter, index, page.topLeft(), seenOf(page)) && complete;
    paintMarks(painter, index);
  }
  if (!complete) QTimer::singleShot(0, viewport(), qOverload<>(&QWidget::update));
}

void PageView::paintNothingToShow(QPainter& painter) const {
  painter.fillRect(viewport()->rect(), palette().color(QPalette::Mid));
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawText(viewport()->rect(), Qt::AlignCenter, QStringLiteral("没有可显示的页"));
}

void PageView::paintBackground(QPainter& painter, int first, int last) const {
  QRegion around(seenOf(QRect()));
  for (int index = first; index <= last; ++index) around -= deviceRect(index);
  // The pages are not filled before they are drawn: a turn of the page costs little more than painting it.
  for (const QRect& part : around) painter.fillRect(part, palette().color(QPalette::Mid));
}

void PageView::paintFrame(QPainter& painter, int index) const {
  const QRect page = deviceRect(index);
  const bool chosen = m_layout.columns() > 1 && index == m_current;
  const int edge = std::max(1, qRound(m_ratio)) * (chosen ? 3 : 1);
  const QColor color = palette().color(chosen ? QPalette::Highlight : QPalette::Dark);
  for (const QRect& part : QRegion(page.adjusted(-edge, -edge, edge, edge)) - page)
    painter.fillRect(part, color);
}

void PageView::paintMarks(QPainter& painter, int index) const {
  if (!m_marks) return;
  const QRect page = deviceRect(index);
  const double scale = static_cast<double>(page.width()) / m_document.paperSize().width();
  painter.save();
  // Like a text marker: what is black stays black.
  painter.setCompositionMode(QPainter::CompositionMode_Multiply);
  for (const PageMark& mark : m_marks(index)) {
    const QRectF box(mark.box.topLeft() * scale + page.topLeft(), mark.box.size() * scale);
    painter.fillRect(box.toAlignedRect(), mark.current ? currentMarkColor : markColor);
  }
  painter.restore();
}

}  // namespace preview
