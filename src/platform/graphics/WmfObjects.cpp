#include "graphics/WmfObjects.h"

#include <algorithm>

#include <QBuffer>
#include <QImageReader>

#include "graphics/Fonts.h"
#include "graphics/StoredColor.h"
#include "runtime/CodePage.h"

namespace graphics {
namespace {

constexpr qint64 mostPixels = 16'000'000;
constexpr int bitmapHead = 40;
constexpr int maskedColors = 3;
constexpr int fileHead = 14;

QColor colorAt(const MetafileRecord& record, qsizetype word) {
  return fromStoredColor(static_cast<int>(record.u32(word) & 0xFFFFFF));
}

/// Where the pixels begin, counted from the bitmap's head.
qint64 pixelsAt(const MetafileRecord& head) {
  const qint64 length = head.u32(0);
  const int depth = head.u16(7);
  const qint64 given = head.u32(16);
  const qint64 colors = given == 0 && depth <= 8 ? qint64{1} << depth : given;
  const qint64 masks = head.u32(8) == maskedColors && length == bitmapHead ? 12 : 0;
  return length + masks + colors * 4;
}

void appendNumber(QByteArray& bytes, qint64 number) {
  for (int shift = 0; shift < 32; shift += 8) bytes += static_cast<char>(number >> shift);
}

}  // namespace

MetafilePen wmfPen(const MetafileRecord& record) {
  static constexpr Qt::PenStyle styles[] = {Qt::SolidLine,      Qt::DashLine, Qt::DotLine,   Qt::DashDotLine,
                                            Qt::DashDotDotLine, Qt::NoPen,    Qt::SolidLine, Qt::SolidLine};
  MetafilePen pen;
  pen.pen = QPen(colorAt(record, 3));
  pen.pen.setStyle(styles[record.u16(0) & 7]);
  pen.pen.setCapStyle(Qt::RoundCap);
  pen.pen.setJoinStyle(Qt::RoundJoin);
  pen.width = std::abs(record.i16(1));
  return pen;
}

QBrush wmfBrush(const MetafileRecord& record) {
  static constexpr Qt::BrushStyle hatches[] = {Qt::HorPattern,   Qt::VerPattern,   Qt::FDiagPattern,
                                               Qt::BDiagPattern, Qt::CrossPattern, Qt::DiagCrossPattern};
  constexpr int hollow = 1;
  constexpr int hatched = 2;
  const int style = record.u16(0);
  if (style == hollow) return Qt::NoBrush;
  if (style != hatched) return colorAt(record, 1);
  return {colorAt(record, 1), hatches[std::min(record.u16(3), 5)]};
}

QBrush wmfPattern(const MetafileRecord& record) {
  const QImage pattern = wmfBitmap(record.bytesFrom(4));
  return pattern.isNull() ? QBrush(Qt::white) : QBrush(pattern);
}

MetafileFont wmfFont(const MetafileRecord& record) {
  constexpr qsizetype longestFace = 32;
  constexpr int boldFrom = 600;
  MetafileFont font;
  font.height = record.i16(0) == 0 ? font.height : record.i16(0);
  font.angle = record.i16(2);
  font.charset = record.byte(13);
  QByteArray face = record.bytesFrom(18).toByteArray().left(longestFace);
  if (const qsizetype end = face.indexOf('\0'); end >= 0) face.truncate(end);
  font.font.setFamily(substituteFamily(runtime::fromCodePage(face)));
  font.font.setBold(record.i16(4) >= boldFrom);
  font.font.setItalic(record.byte(10) != 0);
  font.font.setUnderline(record.byte(11) != 0);
  font.font.setStrikeOut(record.byte(12) != 0);
  return font;
}

QImage wmfBitmap(QByteArrayView bytes) {
  const MetafileRecord head(0, bytes);
  const qint64 width = static_cast<qint32>(head.u32(2));
  const qint64 height = std::abs(qint64{static_cast<qint32>(head.u32(4))});
  const qint64 at = pixelsAt(head);
  if (head.u32(0) < bitmapHead || width <= 0 || width > mostPixels || height > mostPixels ||
      width * height > mostPixels || at > bytes.size()) {
    return {};
  }
  QByteArray file("BM");
  appendNumber(file, fileHead + bytes.size());
  appendNumber(file, 0);
  appendNumber(file, fileHead + at);
  file += bytes.toByteArray();
  QBuffer buffer(&file);
  return QImageReader(&buffer, "bmp").read().convertToFormat(QImage::Format_RGB32);
}

}  // namespace graphics
