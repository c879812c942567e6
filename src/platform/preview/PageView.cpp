#include "preview/PageView.h"

#include <algorithm>
#include <cmath>

#include <QPaintEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTimer>
#include <QWheelEvent>

#include "graphics/Twips.h"
#include "runtime/RuntimeError.h"

namespace preview {

namespace {

// A frame that paints longer than this shows what it has and goes on in the next one.
constexpr int sliceMilliseconds = 25;
constexpr int wheelNotch = 120;
constexpr int lineStep = 40;

QSize pixelSize(QSize twips, double pixelsPerTwip) {
  return {qRound(twips.width() * pixelsPerTwip), qRound(twips.height() * pixelsPerTwip)};
}

void paintProblem(QPainter& painter, const QRect& area, const QString& description) {
  painter.setPen(Qt::darkRed);
  painter.drawText(area, Qt::AlignCenter | Qt::TextWordWrap,
                   QStringLiteral("此页无法显示：\n") + description);
}

}  // namespace

PageView::PageView(report::Document document, QWidget* parent)
    : QAbstractScrollArea(parent), m_document(std::move(document)) {
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
  const QSize room = maximumViewportSize() - QSize(2, 2) * PageLayout::gap;
  const QSize paper = m_document.paperSize();
  const double byWidth = static_cast<double>(room.width()) / paper.width();
  const double byHeight = static_cast<double>(room.height()) / paper.height();
  const double wanted = m_zoom.fit == Zoom::Fit::None    ? whole * m_zoom.percent / 100
                        : m_zoom.fit == Zoom::Fit::Width ? byWidth
                                                         : std::min(byWidth, byHeight);
  return std::clamp(wanted, whole * 0.05, whole * largestPercent / 100);
}

double PageView::shownPercent() const {
  return pixelsPerTwip() * graphics::twipsPerInch / logicalDpiX() * 100;
}

void PageView::arrange() {
  if (m_document.pageCount() == 0) return;
  const QScopedValueRollback arranging(m_arranging, true);
  m_layout = PageLayout(m_document.pageCount(), pixelSize(m_document.paperSize(), pixelsPerTwip()),
                        viewport()->size());
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

void PageView::setCurrent(int index) {
  if (index == m_current) return;
  m_current = index;
  emit currentPageChanged(index);
}

void PageView::goToPage(int index) {
  if (m_document.pageCount() == 0) return;
  const int page = std::clamp(index, 0, m_document.pageCount() - 1);
  {
    // The last pages cannot start at the top; they are gone to all the same.
    const QScopedValueRollback arranging(m_arranging, true);
    verticalScrollBar()->setValue(m_layout.scrollOf(page));
  }
  setCurrent(page);
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
  const int page = m_layout.pageAt((place + scrolled()).y());
  const QRect before = m_layout.pageRect(page);
  const QPointF within = QPointF(place + scrolled() - before.topLeft());
  const double scale = pixelsPerTwip();
  m_zoom = zoom;
  arrange();
  const QPointF grown = within * (pixelsPerTwip() / scale);
  const QPoint target = (QPointF(m_layout.pageRect(page).topLeft()) + grown).toPoint() - place;
  {
    const QScopedValueRollback arranging(m_arranging, true);
    horizontalScrollBar()->setValue(target.x());
    verticalScrollBar()->setValue(zoom.fit == Zoom::Fit::Page ? m_layout.scrollOf(m_current) : target.y());
  }
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
  if (!m_arranging) setCurrent(m_layout.currentPage(scrolled().y()));
}

void PageView::wheelEvent(QWheelEvent* event) {
  if (!event->modifiers().testFlag(Qt::ControlModifier)) return QAbstractScrollArea::wheelEvent(event);
  m_wheel += event->angleDelta().y();
  const QPoint place = event->position().toPoint();
  for (; m_wheel >= wheelNotch; m_wheel -= wheelNotch)
    setZoomAround({Zoom::Fit::None, percentAbove(shownPercent())}, place);
  for (; m_wheel <= -wheelNotch; m_wheel += wheelNotch)
    setZoomAround({Zoom::Fit::None, percentBelow(shownPercent())}, place);
  event->accept();
}

void PageView::matchDevice() {
  const double ratio = devicePixelRatioF();
  const QSize page = (QSizeF(m_layout.pageSize()) * ratio).toSize();
  if (page == m_grid.page() && ratio == m_cachedRatio) return;
  m_cache.clear();
  m_grid = TileGrid(page);
  m_cachedRatio = ratio;
}

QRect PageView::deviceRect(int index) const {
  const QPointF corner = QPointF(m_layout.pageRect(index).topLeft() - scrolled()) * m_cachedRatio;
  return {corner.toPoint(), m_grid.page()};
}

QRect PageView::deviceViewport() const {
  return {QPoint(), (QSizeF(viewport()->size()) * m_cachedRatio).toSize()};
}

void PageView::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(viewport());
  painter.fillRect(viewport()->rect(), palette().color(QPalette::Mid));
  if (m_document.pageCount() == 0) return paintNothingToShow(painter);
  matchDevice();
  // Tiles are copied pixel by pixel: nothing may scale them, at fractional ratios neither.
  painter.scale(1 / m_cachedRatio, 1 / m_cachedRatio);
  const int first = m_layout.pageAt(scrolled().y());
  const int last = m_layout.pageAt(scrolled().y() + viewport()->height());
  reserveCache(first, last);
  QElapsedTimer since;
  since.start();
  m_paintedInFrame = 0;
  bool complete = true;
  for (int index = first; index <= last; ++index) {
    paintFrame(painter, index);
    complete = paintTiles(painter, index, since) && complete;
  }
  if (!complete) QTimer::singleShot(0, viewport(), qOverload<>(&QWidget::update));
}

void PageView::paintNothingToShow(QPainter& painter) const {
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawText(viewport()->rect(), Qt::AlignCenter, QStringLiteral("没有可显示的页"));
}

void PageView::reserveCache(int first, int last) {
  qsizetype bytes = 0;
  for (int index = first; index <= last; ++index) {
    const QRect page = deviceRect(index);
    for (const int tile : m_grid.touchedBy(deviceViewport().translated(-page.topLeft()))) {
      bytes += qsizetype{4} * m_grid.rect(tile).width() * m_grid.rect(tile).height();
    }
  }
  m_cache.makeRoomFor(bytes);
}

void PageView::paintFrame(QPainter& painter, int index) const {
  const QRect page = deviceRect(index);
  const int edge = std::max(1, qRound(m_cachedRatio));
  painter.fillRect(page.adjusted(-edge, -edge, edge, edge), palette().color(QPalette::Dark));
  painter.fillRect(page, Qt::white);
}

bool PageView::paintTiles(QPainter& painter, int index, const QElapsedTimer& since) {
  const QRect page = deviceRect(index);
  bool complete = true;
  for (const int tile : m_grid.touchedBy(deviceViewport().translated(-page.topLeft()))) {
    const QImage* image = m_cache.find({index, tile});
    // The first one is painted however late it is, or a slow screen would never get anywhere.
    if (!image && (m_paintedInFrame == 0 || !since.hasExpired(sliceMilliseconds))) {
      image = paintTile(index, tile);
      ++m_paintedInFrame;
    }
    if (image) painter.drawImage(page.topLeft() + m_grid.rect(tile).topLeft(), *image);
    complete = complete && image != nullptr;
  }
  return complete;
}

const QImage* PageView::paintTile(int index, int tile) {
  const QRect area = m_grid.rect(tile);
  QImage image(area.size(), QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.translate(-area.topLeft());
  const QSizeF paper = m_document.paperSize();
  painter.save();
  painter.scale(m_grid.page().width() / paper.width(), m_grid.page().height() / paper.height());
  QString problem;
  try {
    report::paintPage(painter, m_document, index, m_pictures);
  } catch (const runtime::RuntimeError& error) {
    problem = error.description();
  }
  painter.restore();
  if (!problem.isEmpty()) paintProblem(painter, QRect(QPoint(), m_grid.page()), problem);
  painter.end();
  return m_cache.insert({index, tile}, std::move(image));
}

}  // namespace preview
