#include "cli/Portrait.h"

#include <array>
#include <cmath>

#include <QBuffer>
#include <QImageWriter>
#include <QPainter>
#include <QPainterPath>

#include "cli/DemoRandom.h"
#include "runtime/RuntimeError.h"

namespace cli {

namespace {

// Faces are painted on a canvas of 240 by 320 units, whatever the size of the photo.
constexpr double canvasWidth = 240;
constexpr double canvasHeight = 320;
constexpr QPointF headCenter(120, 140);
constexpr int jpegQuality = 85;
constexpr int grainStrength = 9;

constexpr std::array<QRgb, 6> skins{0xfff6d7c0, 0xfff0c8a8, 0xffe8b894, 0xffdca67e, 0xfff9e0cf, 0xffcf9770};
constexpr std::array<QRgb, 5> hairColors{0xff1a1614, 0xff2b211c, 0xff3d2a20, 0xff0e0e12, 0xff6b6a6a};
constexpr std::array<QRgb, 8> clothesColors{0xff24405f, 0xff5b2333, 0xff2f4f3a, 0xff3b3b45,
                                            0xff7a5c2e, 0xff53407a, 0xffb9c3cf, 0xff8e3b2f};
constexpr std::array<QRgb, 4> backdrops{0xffd8e6f3, 0xffe9e9ec, 0xff9fc3e6, 0xffc94b46};
constexpr int hairStyles = 4;
constexpr int collars = 3;

template <std::size_t Count>
QColor colorAt(const std::array<QRgb, Count>& colors, int index) {
  return QColor::fromRgb(colors[static_cast<std::size_t>(index) % Count]);
}

/// One face on its way onto the canvas, from the back to the front.
class FacePainter {
 public:
  FacePainter(QPainter& painter, const Face& face)
      : m_painter(painter),
        m_face(face),
        m_skin(colorAt(skins, face.skin)),
        m_hair(colorAt(hairColors, face.hairColor)),
        m_halfWidth(58.0 * face.headWidth / 100),
        m_halfHeight(76.0 * face.headHeight / 100) {
    m_painter.setPen(Qt::NoPen);
  }

  void paint() {
    paintBackdrop();
    if (m_face.woman) paintLongHair();
    paintShoulders();
    paintHead();
    paintHair();
    paintFeatures();
    if (m_face.glasses) paintGlasses();
  }

 private:
  void ellipse(QPointF center, double rx, double ry, const QColor& color) {
    m_painter.setBrush(color);
    m_painter.drawEllipse(center, rx, ry);
  }

  void paintBackdrop() {
    const QColor color = colorAt(backdrops, m_face.backdrop);
    QLinearGradient light(0, 0, canvasWidth, canvasHeight);
    light.setColorAt(0, color.lighter(108));
    light.setColorAt(1, color.darker(108));
    m_painter.fillRect(QRectF(0, 0, canvasWidth, canvasHeight), light);
  }

  void paintLongHair() {
    const double length = m_face.hairStyle % 2 == 0 ? 105 : 135;
    m_painter.setBrush(m_hair.darker(115));
    m_painter.drawRoundedRect(QRectF(headCenter.x() - m_halfWidth - 14, headCenter.y() - m_halfHeight,
                                     2 * m_halfWidth + 28, m_halfHeight + length),
                              60, 50);
  }

  void paintShoulders() {
    const QColor clothes = colorAt(clothesColors, m_face.clothes);
    m_painter.setBrush(m_skin.darker(110));
    m_painter.drawRoundedRect(QRectF(headCenter.x() - 26, 190, 52, 80), 14, 14);
    QPainterPath body(QPointF(10, 330));
    body.cubicTo(QPointF(20, 262), QPointF(60, 250), QPointF(94, 238));
    body.lineTo(QPointF(120, 268));
    body.lineTo(QPointF(146, 238));
    body.cubicTo(QPointF(180, 250), QPointF(220, 262), QPointF(230, 330));
    m_painter.setBrush(clothes);
    m_painter.drawPath(body);
    paintCollar(clothes);
  }

  void paintCollar(const QColor& clothes) {
    if (m_face.collar == 0) return;
    m_painter.setBrush(m_face.collar == 1 ? QColor(Qt::white) : clothes.lighter(135));
    m_painter.drawPolygon(QPolygonF({{94, 236}, {120, 270}, {100, 286}, {80, 246}}));
    m_painter.drawPolygon(QPolygonF({{146, 236}, {120, 270}, {140, 286}, {160, 246}}));
  }

  void paintHead() {
    const QColor ear = m_skin.darker(106);
    ellipse(headCenter + QPointF(-m_halfWidth, 4), 10, 17, ear);
    ellipse(headCenter + QPointF(m_halfWidth, 4), 10, 17, ear);
    ellipse(headCenter, m_halfWidth, m_halfHeight, m_skin);
    QColor cheek(0xd9, 0x6a, 0x5a, 40);
    ellipse(headCenter + QPointF(-30, 28), 14, 10, cheek);
    ellipse(headCenter + QPointF(30, 28), 14, 10, cheek);
  }

  void paintHair() {
    QPainterPath cap;
    cap.addEllipse(headCenter + QPointF(0, -6), m_halfWidth + 7, m_halfHeight + 8);
    QPainterPath below;
    // Where the hair ends: down to the ears at the sides, and over the forehead a fringe, a parting to either
    // side, or a high line.
    const std::array<QPointF, hairStyles> bows{QPointF(0, -20), QPointF(-40, -58), QPointF(40, -58),
                                               QPointF(0, -84)};
    const QPointF bow = bows[static_cast<std::size_t>(m_face.hairStyle)];
    const double hairline = headCenter.y() - (m_face.woman ? 30 : 38);
    const double reach = m_halfWidth + 8;
    below.moveTo(QPointF(0, hairline + 46));
    below.lineTo(QPointF(headCenter.x() - reach, hairline + 46));
    below.quadTo(QPointF(headCenter.x() + bow.x(), hairline + bow.y()),
                 QPointF(headCenter.x() + reach, hairline + 46));
    below.lineTo(QPointF(canvasWidth, hairline + 46));
    below.lineTo(canvasWidth, canvasHeight);
    below.lineTo(0, canvasHeight);
    m_painter.setBrush(m_hair);
    m_painter.drawPath(cap.subtracted(below));
  }

  void paintFeatures() {
    for (const double side : {-1.0, 1.0}) {
      const QPointF eye = headCenter + QPointF(side * 24, 0);
      ellipse(eye, 10, 5.5, Qt::white);
      ellipse(eye, 5, 5, QColor(0x2a, 0x1b, 0x14));
      ellipse(eye + QPointF(1.5, -1.5), 1.4, 1.4, Qt::white);
      m_painter.setPen(QPen(m_hair, m_face.woman ? 2.2 : 4, Qt::SolidLine, Qt::RoundCap));
      m_painter.drawLine(eye + QPointF(-12, -13), eye + QPointF(12, -13 - side * (m_face.hairStyle - 1)));
      m_painter.setPen(Qt::NoPen);
    }
    m_painter.setPen(QPen(m_skin.darker(135), 2.4, Qt::SolidLine, Qt::RoundCap));
    m_painter.drawPolyline(
        QPolygonF({headCenter + QPointF(-1, 6), headCenter + QPointF(-7, 26), headCenter + QPointF(5, 28)}));
    m_painter.setPen(
        QPen(m_face.woman ? QColor(0xb2, 0x3a, 0x48) : m_skin.darker(150), 3.4, Qt::SolidLine, Qt::RoundCap));
    QPainterPath mouth(headCenter + QPointF(-16, 44));
    mouth.quadTo(headCenter + QPointF(0, 50 + m_face.collar * 2), headCenter + QPointF(16, 44));
    m_painter.setBrush(Qt::NoBrush);
    m_painter.drawPath(mouth);
    m_painter.setPen(Qt::NoPen);
  }

  void paintGlasses() {
    m_painter.setPen(QPen(QColor(0x30, 0x30, 0x38), 2.6));
    m_painter.setBrush(QColor(255, 255, 255, 36));
    m_painter.drawRoundedRect(QRectF(headCenter.x() - 42, headCenter.y() - 12, 36, 26), 8, 8);
    m_painter.drawRoundedRect(QRectF(headCenter.x() + 6, headCenter.y() - 12, 36, 26), 8, 8);
    m_painter.drawLine(headCenter + QPointF(-6, -2), headCenter + QPointF(6, -2));
    m_painter.setPen(Qt::NoPen);
  }

  QPainter& m_painter;
  const Face& m_face;
  QColor m_skin;
  QColor m_hair;
  double m_halfWidth;
  double m_halfHeight;
};

int shifted(int channel, int by) {
  return std::clamp(channel + by, 0, 255);
}

/// Noise like a camera's, so that the photos need as many bytes as real ones and no two are equal.
void addGrain(QImage& image, std::uint64_t start) {
  // Marsaglia's xorshift (2003): the grain of thousands of photos is made in seconds.
  std::uint64_t state = start | 1U;
  for (int y = 0; y < image.height(); ++y) {
    auto* pixels = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < image.width(); ++x) {
      state ^= state << 13U;
      state ^= state >> 7U;
      state ^= state << 17U;
      const int by = static_cast<int>(state % (2 * grainStrength + 1)) - grainStrength;
      const QRgb pixel = pixels[x];
      pixels[x] = qRgb(shifted(qRed(pixel), by), shifted(qGreen(pixel), by), shifted(qBlue(pixel), by));
    }
  }
}

QByteArray jpegOf(const QImage& image) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  QImageWriter writer(&buffer, "jpg");
  writer.setQuality(jpegQuality);
  if (!writer.write(image)) {
    throw runtime::RuntimeError(runtime::ErrorNumber::InvalidPicture,
                                QStringLiteral("无法生成照片：%1").arg(writer.errorString()));
  }
  return bytes;
}

QByteArray photoOf(const Face& face, const QSize& size) {
  QImage image = paintFace(face, size);
  addGrain(image, face.grain);
  return jpegOf(image);
}

}  // namespace

Face Face::drawn(DemoRandom& random) {
  Face face;
  face.woman = random.percent(50);
  face.skin = random.below(static_cast<int>(skins.size()));
  face.hairColor = random.percent(8) ? 4 : random.below(4);
  face.hairStyle = random.below(hairStyles);
  face.clothes = random.below(static_cast<int>(clothesColors.size()));
  face.collar = random.below(collars);
  face.backdrop = random.below(static_cast<int>(backdrops.size()));
  face.glasses = random.percent(35);
  face.headWidth = random.between(90, 108);
  face.headHeight = random.between(94, 108);
  constexpr int half = 1 << 24;
  face.grain = (static_cast<std::uint64_t>(random.below(half)) << 32U) +
               static_cast<std::uint64_t>(random.below(half)) + 1;
  return face;
}

QImage paintFace(const Face& face, const QSize& size) {
  QImage image(size, QImage::Format_RGB32);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(size.width() / canvasWidth, size.height() / canvasHeight);
  FacePainter(painter, face).paint();
  return image;
}

PortraitStudio::PortraitStudio(int kilobytes) {
  if (kilobytes == 0) return;
  // Two trials with a sitter find the number of pixels that gives the wanted bytes.
  DemoRandom random(1);
  const Face sitter = Face::drawn(random);
  for (int trial = 0; trial < 2; ++trial) {
    const double factor = std::sqrt(kilobytes * 1024.0 / static_cast<double>(photoOf(sitter, m_size).size()));
    m_size = QSize(std::max(12, static_cast<int>(std::lround(m_size.width() * factor))),
                   std::max(16, static_cast<int>(std::lround(m_size.height() * factor))));
  }
}

QByteArray PortraitStudio::portrait(const Face& face) const {
  return photoOf(face, m_size);
}

}  // namespace cli
