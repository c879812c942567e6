#include "graphics/EmfPicture.h"

#include <algorithm>

#include <QPainter>
#include <QRegularExpression>
#include <QSvgRenderer>

#include "graphics/EmfConverter.h"
#include "graphics/Fonts.h"
#include "graphics/MetafileRecord.h"

namespace graphics {
namespace {

// Of the published format: the numbers of the first and the last record and what the first one begins with.
constexpr quint32 headRecord = 1;
constexpr quint32 lastRecord = 14;
constexpr qsizetype boundsWord = 4;
constexpr qsizetype signatureByte = 40;
constexpr qint64 recordHead = 8;

constexpr int longestSide = 1200;
constexpr qint64 largestSide = 20000;

qint64 i32(const MetafileRecord& head, qsizetype word) {
  return static_cast<qint32>(head.u32(word));
}

/// A file cut short is converted without complaint up to its end, so the whole chain is followed first.
void checkRecords(QByteArrayView bytes) {
  QByteArrayView rest = bytes;
  for (quint32 type = 0; type != lastRecord;) {
    const MetafileRecord record(0, rest);
    type = record.u32(0);
    const qint64 length = record.u32(2);
    if (length < recordHead || length % 4 != 0) throw ShortRecord();
    rest = record.bytesFrom(length);
  }
}

void checkBounds(const MetafileRecord& head) {
  const qint64 width = i32(head, boundsWord + 4) - i32(head, boundsWord);
  const qint64 height = i32(head, boundsWord + 6) - i32(head, boundsWord + 2);
  if (std::min(width, height) < 0 || std::max(width, height) > largestSide) {
    throw EmfFailure{QStringLiteral("尺寸 %1×%2 不合理").arg(width).arg(height)};
  }
}

/// The families that the fonts of this system stand in for, named so that the drawing finds them.
QByteArray withOurFonts(const QByteArray& svg) {
  static const QRegularExpression family(QStringLiteral("font-family=\"([^\"]*)\""));
  const QString text = QString::fromUtf8(svg);
  QString changed;
  qsizetype done = 0;
  for (auto matches = family.globalMatch(text); matches.hasNext();) {
    const QRegularExpressionMatch match = matches.next();
    changed += QStringView(text).mid(done, match.capturedStart(1) - done);
    changed += substituteFamily(match.captured(1)).toHtmlEscaped();
    done = match.capturedEnd(1);
  }
  return changed.append(QStringView(text).mid(done)).toUtf8();
}

bool drawsSomething(const QByteArray& svg) {
  static const QRegularExpression shape(
      QStringLiteral("<(?:path|rect|ellipse|circle|line|poly\\w+|text|image)\\b"));
  // What only bounds the drawing is none.
  static const QRegularExpression definitions(QStringLiteral("<defs>.*?</defs>"),
                                              QRegularExpression::DotMatchesEverythingOption);
  return QString::fromUtf8(svg).remove(definitions).contains(shape);
}

}  // namespace

bool isEmf(QByteArrayView bytes) {
  return bytes.startsWith(QByteArrayView("\x01\x00\x00\x00", 4)) &&
         bytes.sliced(std::min(bytes.size(), signatureByte)).startsWith(" EMF");
}

EmfDrawing convertEmf(const QByteArray& bytes) {
  try {
    checkRecords(bytes);
    checkBounds(MetafileRecord(headRecord, bytes));
  } catch (const ShortRecord&) {
    throw EmfFailure{QStringLiteral("EMF 图元文件不完整")};
  }
  const QByteArray svg = withOurFonts(svgOfEmf(bytes));
  const QSize natural = QSvgRenderer(svg).defaultSize();
  if (natural.isEmpty() || !drawsSomething(svg))
    throw EmfFailure{QStringLiteral("EMF 图元文件没有可显示的内容")};
  return {svg, natural.scaled(longestSide, longestSide, Qt::KeepAspectRatio)};
}

QImage drawEmf(const QByteArray& svg, QSize size) {
  QSvgRenderer renderer(svg);
  // By itself the renderer would show what is drawn, not what the metafile has inside of its bounds.
  renderer.setViewBox(QRect(QPoint(0, 0), renderer.defaultSize()));
  QImage image(size, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  renderer.render(&painter);
  return image;
}

}  // namespace graphics
