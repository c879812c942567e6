#include "graphics/WmfPlayer.h"

#include <algorithm>

#include "graphics/StoredColor.h"
#include "graphics/WmfObjects.h"
#include "runtime/CodePage.h"

namespace graphics {
namespace {

constexpr std::size_t mostObjects = 4096;
constexpr int chineseCharset = 134;
constexpr int defaultCharset = 1;
constexpr int firstLeadByte = 0x81;

QColor colorOf(const MetafileRecord& record) {
  return fromStoredColor(static_cast<int>(record.u32(0) & 0xFFFFFF));
}

QPolygon pointsAt(const MetafileRecord& record, qsizetype word, int count) {
  QPolygon points;
  points.reserve(record.bytes(word * 2, qsizetype{count} * 4).size() / 4);
  for (qsizetype i = 0; i < count; ++i) points << record.pointXy(word + i * 2);
  return points;
}

QRect boxAt(const MetafileRecord& record, qsizetype word) {
  return {record.pointYx(word + 2), QSize(record.i16(word + 1), record.i16(word))};
}

/// How pixels are put over those that are there, by the ternary raster operation of the published format.
QPainter::CompositionMode modeOf(quint32 operation) {
  switch (operation) {
    case 0x008800C6:
      return QPainter::RasterOp_SourceAndDestination;
    case 0x00EE0086:
      return QPainter::RasterOp_SourceOrDestination;
    case 0x00660046:
      return QPainter::RasterOp_SourceXorDestination;
    default:
      return QPainter::CompositionMode_SourceOver;
  }
}

}  // namespace

void WmfPlayer::play(const MetafileRecord& record) {
  try {
    if (playSetting(record) || playObject(record) || playShape(record) || playText(record)) return;
    playPicture(record);
  } catch (const ShortRecord&) {
    // One damaged record does not spoil the rest: the chain of records itself has been checked.
    return;
  }
}

bool WmfPlayer::playSetting(const MetafileRecord& record) {
  MetafileCanvas::State& state = m_canvas.state();
  switch (record.function()) {
    case 0x001E:
      m_canvas.save();
      return true;
    case 0x0127:
      m_canvas.restore(record.i16(0));
      return true;
    case 0x0102:
      state.opaque = record.u16(0) == 2;
      return true;
    case 0x0106:
      state.fillRule = record.u16(0) == 2 ? Qt::WindingFill : Qt::OddEvenFill;
      return true;
    case 0x012E:
      state.textAlignment = record.u16(0);
      return true;
    case 0x0201:
      state.backColor = colorOf(record);
      return true;
    case 0x0209:
      state.textColor = colorOf(record);
      return true;
    case 0x020B:
      state.window.moveTopLeft(record.pointYx(0));
      return true;
    case 0x020C:
      setWindowExtent(record.pointYx(0));
      return true;
    case 0x020F:
      offsetWindow(record.pointYx(0));
      return true;
    case 0x0214:
      state.position = record.pointYx(0);
      return true;
    case 0x0416:
      m_canvas.clip(record.pointYx(2), record.pointYx(0));
      return true;
    default:
      return false;
  }
}

void WmfPlayer::offsetWindow(QPoint offset) {
  // Kept near: many steps in one direction must not leave the range of numbers.
  constexpr int farthest = 1'000'000;
  QRect& window = m_canvas.state().window;
  const QPoint to = window.topLeft() + offset;
  window.moveTopLeft({std::clamp(to.x(), -farthest, farthest), std::clamp(to.y(), -farthest, farthest)});
}

void WmfPlayer::setWindowExtent(QPoint extent) {
  if (extent.x() != 0 && extent.y() != 0) m_canvas.state().window.setSize({extent.x(), extent.y()});
}

bool WmfPlayer::playObject(const MetafileRecord& record) {
  switch (record.function()) {
    case 0x02FA:
      create(wmfPen(record));
      return true;
    case 0x02FC:
      create(wmfBrush(record));
      return true;
    case 0x02FB:
      create(wmfFont(record));
      return true;
    case 0x0142:
      create(wmfPattern(record));
      return true;
    case 0x00F7:
    case 0x01F9:
    case 0x06FF:
      create({});
      return true;
    case 0x012D:
      select(record.u16(0));
      return true;
    case 0x01F0:
      remove(record.u16(0));
      return true;
    default:
      return false;
  }
}

void WmfPlayer::create(Object object) {
  // The first free place: the numbers by which later records select count so.
  for (std::optional<Object>& place : m_objects) {
    if (place) continue;
    place.emplace(std::move(object));
    return;
  }
  if (m_objects.size() < mostObjects) m_objects.emplace_back(std::move(object));
}

void WmfPlayer::select(int index) {
  if (index >= static_cast<int>(m_objects.size())) return;
  const std::optional<Object>& place = m_objects[static_cast<std::size_t>(index)];
  if (!place) return;
  const Object& object = *place;
  if (const auto* pen = std::get_if<MetafilePen>(&object)) m_canvas.state().pen = *pen;
  if (const auto* brush = std::get_if<QBrush>(&object)) m_canvas.state().brush = *brush;
  if (const auto* font = std::get_if<MetafileFont>(&object)) m_canvas.state().font = *font;
}

void WmfPlayer::remove(int index) {
  if (index < static_cast<int>(m_objects.size())) m_objects[static_cast<std::size_t>(index)].reset();
}

bool WmfPlayer::playShape(const MetafileRecord& record) {
  using Closing = MetafileCanvas::Closing;
  switch (record.function()) {
    case 0x0213:
      m_canvas.lineTo(record.pointYx(0));
      return true;
    case 0x041B:
      m_canvas.rectangle(record.pointYx(2), record.pointYx(0));
      return true;
    case 0x061C:
      m_canvas.rectangle(record.pointYx(4), record.pointYx(2), {record.i16(1), record.i16(0)});
      return true;
    case 0x0418:
      m_canvas.ellipse(record.pointYx(2), record.pointYx(0));
      return true;
    case 0x0817:
      arc(record, Closing::Open);
      return true;
    case 0x081A:
      arc(record, Closing::Pie);
      return true;
    case 0x0830:
      arc(record, Closing::Chord);
      return true;
    case 0x0324:
      m_canvas.polygons({pointsAt(record, 1, record.u16(0))});
      return true;
    case 0x0325:
      m_canvas.polyline(pointsAt(record, 1, record.u16(0)));
      return true;
    case 0x0538:
      polyPolygon(record);
      return true;
    default:
      return false;
  }
}

void WmfPlayer::arc(const MetafileRecord& record, MetafileCanvas::Closing closing) {
  const QPoint from = record.pointYx(6);
  const QPoint to = record.pointYx(4);
  m_canvas.arc({from, QSize(to.x() - from.x(), to.y() - from.y())}, record.pointYx(2), record.pointYx(0),
               closing);
}

void WmfPlayer::polyPolygon(const MetafileRecord& record) {
  const int count = record.u16(0);
  qsizetype at = 1 + count;
  std::vector<QPolygon> polygons;
  for (int i = 0; i < count; ++i) {
    const int points = record.u16(1 + i);
    polygons.push_back(pointsAt(record, at, points));
    at += qsizetype{points} * 2;
  }
  m_canvas.polygons(polygons);
}

bool WmfPlayer::playText(const MetafileRecord& record) {
  constexpr int textOut = 0x0521;
  constexpr int extendedTextOut = 0x0A32;
  if (record.function() == extendedTextOut) extendedText(record);
  if (record.function() == textOut) {
    const int length = record.u16(0);
    m_canvas.text(record.pointYx(1 + (length + 1) / 2), decoded(record.bytes(2, length)));
  }
  return record.function() == textOut || record.function() == extendedTextOut;
}

void WmfPlayer::extendedText(const MetafileRecord& record) {
  constexpr int opaqueBox = 2;
  constexpr int withBox = 6;
  const int options = record.u16(3);
  const bool hasBox = (options & withBox) != 0;
  const int length = record.u16(2);
  const qsizetype textAt = hasBox ? 16 : 8;
  const QString text = decoded(record.bytes(textAt, length));
  if ((options & opaqueBox) != 0) {
    const QPoint from = record.pointXy(4);
    const QPoint to = record.pointXy(6);
    m_canvas.fill({from, QSize(to.x() - from.x(), to.y() - from.y())}, m_canvas.state().backColor);
  }
  m_canvas.text(record.pointYx(0), text, advancesOf(record, textAt, length));
}

std::vector<int> WmfPlayer::advancesOf(const MetafileRecord& record, qsizetype textAt, int length) const {
  const qsizetype word = (textAt + length + 1) / 2;
  std::vector<int> advances;
  if (record.bytesFrom(0).size() < (word + length) * 2) return advances;
  for (int at = 0; at < length;) {
    // Each byte has its advance, but two may be one Chinese character.
    const bool pair = isChinese() && record.byte(textAt + at) >= firstLeadByte && at + 1 < length;
    advances.push_back(record.i16(word + at) + (pair ? record.i16(word + at + 1) : 0));
    at += pair ? 2 : 1;
  }
  return advances;
}

bool WmfPlayer::isChinese() const {
  const int charset = m_canvas.state().font.charset;
  return charset == chineseCharset || charset == defaultCharset;
}

QString WmfPlayer::decoded(QByteArrayView bytes) const {
  return isChinese() ? runtime::fromCodePage(bytes.toByteArray()) : QString::fromLatin1(bytes);
}

bool WmfPlayer::playPicture(const MetafileRecord& record) {
  switch (record.function()) {
    case 0x061D:
      fillPattern(record);
      return true;
    case 0x0940:
      // Its source has the size of the box.
      image(record, {.source = {3, 2, 5, 4}, .box = 4, .bitmap = 8});
      return true;
    case 0x0B41:
      image(record, {.source = {5, 4, 3, 2}, .box = 6, .bitmap = 10});
      return true;
    case 0x0F43:
      image(record, {.source = {6, 5, 4, 3}, .box = 7, .bitmap = 11});
      return true;
    default:
      return false;
  }
}

void WmfPlayer::fillPattern(const MetafileRecord& record) {
  constexpr quint32 withBrush = 0x00F00021;
  constexpr quint32 black = 0x00000042;
  constexpr quint32 white = 0x00FF0062;
  const quint32 operation = record.u32(0);
  const QRect box = boxAt(record, 2);
  if (operation == withBrush) m_canvas.fill(box, m_canvas.state().brush);
  if (operation == black) m_canvas.fill(box, Qt::black);
  if (operation == white) m_canvas.fill(box, Qt::white);
}

void WmfPlayer::image(const MetafileRecord& record, const ImageWords& words) {
  constexpr quint32 sourceInverted = 0x00330008;
  QImage bitmap = wmfBitmap(record.bytesFrom(words.bitmap * 2));
  if (bitmap.isNull()) return;
  const auto [x, y, width, height] = words.source;
  const QRect source(record.i16(x), record.i16(y), record.i16(width), record.i16(height));
  if (bitmap.rect().contains(source) && !source.isEmpty()) bitmap = bitmap.copy(source);
  const quint32 operation = record.u32(0);
  if (operation == sourceInverted) bitmap.invertPixels();
  m_canvas.picture(boxAt(record, words.box), bitmap, modeOf(operation));
}

}  // namespace graphics
