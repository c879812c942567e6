#include "graphics/WmfPicture.h"

#include <algorithm>

#include <QElapsedTimer>

#include "graphics/MetafileRecord.h"
#include "graphics/WmfPlayer.h"

namespace graphics {
namespace {

constexpr QByteArrayView placeableKey("\xD7\xCD\xC6\x9A", 4);
constexpr qsizetype placeableLength = 22;
constexpr qsizetype headLength = 18;
constexpr int setWindowOrigin = 0x020B;
constexpr int setWindowExtent = 0x020C;
constexpr int longestSide = 1200;
constexpr int largestSide = 20000;
constexpr int pixelsPerInch = 96;
constexpr qint64 drawingTime = 3000;

/// The records of a metafile, one after the other.
class Records {
 public:
  explicit Records(QByteArrayView bytes) {
    const qsizetype start = bytes.startsWith(placeableKey) ? placeableLength : 0;
    m_rest = MetafileRecord(0, bytes).bytesFrom(start);
    if (!isWmf(m_rest)) throw ShortRecord();
    m_rest = MetafileRecord(0, m_rest).bytesFrom(headLength);
  }

  /// The next record; its function is 0 at the end. Throws ShortRecord when the file ends before.
  MetafileRecord next() {
    const MetafileRecord all(0, m_rest);
    const qsizetype length = static_cast<qsizetype>(all.u32(0)) * 2;
    const int function = all.u16(2);
    const QByteArrayView parameters = all.bytes(6, length - 6);
    m_rest = m_rest.sliced(length);
    return {function, parameters};
  }

 private:
  QByteArrayView m_rest;
};

/// The first window that the records set; empty when they set none.
QRect windowOf(QByteArrayView bytes) {
  QRect window(QPoint(0, 0), QSize(0, 0));
  Records records(bytes);
  for (MetafileRecord record = records.next(); record.function() != 0; record = records.next()) {
    if (record.function() == setWindowOrigin) window.moveTopLeft(record.pointYx(0));
    if (record.function() != setWindowExtent || !window.isNull()) continue;
    const QPoint extent = record.pointYx(0);
    window.setSize({extent.x(), extent.y()});
  }
  return window;
}

QRect placeableWindow(const MetafileRecord& head) {
  const QPoint from = head.pointXy(3);
  const QPoint to = head.pointXy(5);
  return {from, QSize(to.x() - from.x(), to.y() - from.y())};
}

QSize naturalSize(QByteArrayView bytes, const QRect& window) {
  const QSize size(std::abs(window.width()), std::abs(window.height()));
  if (!bytes.startsWith(placeableKey)) return size;
  const int inch = MetafileRecord(0, bytes).u16(7);
  return inch == 0 ? QSize() : size * pixelsPerInch / inch;
}

QRect initialWindow(QByteArrayView bytes) {
  const QRect own = windowOf(bytes);
  return bytes.startsWith(placeableKey) ? placeableWindow(MetafileRecord(0, bytes)) : own;
}

}  // namespace

bool isWmf(QByteArrayView bytes) {
  return bytes.startsWith(placeableKey) || bytes.startsWith(QByteArrayView("\x01\x00\x09\x00\x00\x03", 6)) ||
         bytes.startsWith(QByteArrayView("\x01\x00\x09\x00\x00\x01", 6));
}

QSize wmfSize(QByteArrayView bytes) {
  const QRect window = initialWindow(bytes);
  const QSize natural = naturalSize(bytes, window);
  const bool absurd = std::max(natural.width(), natural.height()) > largestSide;
  if (natural.isEmpty() || (absurd && bytes.startsWith(placeableKey))) return natural;
  return QSize(std::abs(window.width()), std::abs(window.height()))
      .scaled(longestSide, longestSide, Qt::KeepAspectRatio);
}

QImage drawWmf(QByteArrayView bytes, QSize size) {
  QElapsedTimer time;
  time.start();
  WmfPlayer player(size, initialWindow(bytes));
  Records records(bytes);
  for (MetafileRecord record = records.next(); record.function() != 0; record = records.next()) {
    player.play(record);
    if (time.hasExpired(drawingTime)) return {};
  }
  return player.finish();
}

}  // namespace graphics
