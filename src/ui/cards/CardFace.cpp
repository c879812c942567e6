#include "ui/cards/CardFace.h"

#include <QBuffer>
#include <QPainter>
#include <QPainterPath>

#include "graphics/Twips.h"
#include "report/ControlPrimitives.h"
#include "report/PagePainter.h"

namespace {

constexpr double enlargement = 1.6;
/// Twips around the card, so that the lines of its frame are seen whole.
constexpr int edge = 15;
constexpr QRect face(-edge, -edge, card::size.width() + 2 * edge, card::size.height() + 2 * edge);
constexpr QSize portraitSize(480, 640);

/// Head and shoulders of nobody.
graphics::PicturePointer samplePortrait() {
  QImage image(portraitSize, QImage::Format_RGB32);
  image.fill(QColor(0xd7, 0xdf, 0xe8));
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(Qt::white);
  const QPointF center = QRectF(image.rect()).center();
  painter.drawEllipse(center + QPointF(0, -90), 112, 130);
  painter.drawEllipse(center + QPointF(0, 340), 200, 270);
  painter.end();
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, "png");
  return std::make_shared<const graphics::Picture>(bytes, QStringLiteral("样张照片"));
}

/// The card of somebody made up, without what the settings say.
report::Section sampleCard() {
  report::Section section = card::design();
  section.control(QStringLiteral("lblName")).Caption = QStringLiteral("张三");
  section.control(QStringLiteral("lblDept")).Caption = QStringLiteral("教务处");
  section.control(QStringLiteral("lblNumber")).Caption = QStringLiteral("A0001");
  section.control(QStringLiteral("Barcode")).Caption = QStringLiteral("123456789012345");
  section.control(QStringLiteral("ImgHead")).Picture = samplePortrait();
  return section;
}

}  // namespace

CardFace::CardFace() : imgCard(new QLabel(this)), imgLogo(new QLabel(this)) {
  report::Section sample = sampleCard();
  imgCard->setObjectName(QStringLiteral("imgCard"));
  imgLogo->setObjectName(QStringLiteral("imgLogo"));
  imgLogo->setAlignment(Qt::AlignCenter);
  lblUnit = new CardText(sample.control(card::unitLine().control));
  lblMemo = new CardText(sample.control(card::memoLine().control));
  lblUnit->setParent(this);
  lblMemo->setParent(this);
  setFixedSize(onScreen(face).size());
  imgCard->setGeometry(rect());
  imgLogo->setGeometry(onScreen(sample.control(QStringLiteral("logPic")).rect()));
  lblUnit->setGeometry(onScreen(lblUnit->label().rect()));
  lblMemo->setGeometry(onScreen(lblMemo->label().rect()));
  imgCard->setPixmap(background(sample));
}

QRect CardFace::onScreen(const QRect& box) const {
  const auto pixels = [this](int twips) {
    return graphics::twipsToPixels(twips * enlargement, logicalDpiX());
  };
  return {pixels(box.left() - face.left()), pixels(box.top() - face.top()), pixels(box.width()),
          pixels(box.height())};
}

QPixmap CardFace::background(const report::Section& sample) const {
  QPixmap pixmap(size() * devicePixelRatio());
  pixmap.setDevicePixelRatio(devicePixelRatio());
  pixmap.fill(Qt::white);
  std::vector<report::Primitive> primitives;
  for (const report::Control& control : sample.Controls) {
    if (control.Name != QStringLiteral("logPic")) report::appendControl(primitives, control, {});
  }
  report::DecodingPictureSource pictures;
  QPainter painter(&pixmap);
  painter.scale(static_cast<double>(width()) / face.width(), static_cast<double>(height()) / face.height());
  painter.translate(-face.topLeft());
  report::paintPrimitives(painter, primitives, pictures);
  return pixmap;
}

void CardFace::setLogo(const graphics::Picture& picture) {
  const QSize room = imgLogo->size() * devicePixelRatio();
  QPixmap pixmap =
      QPixmap::fromImage(picture.decode(room).scaled(room, Qt::KeepAspectRatio, Qt::SmoothTransformation));
  pixmap.setDevicePixelRatio(devicePixelRatio());
  imgLogo->setPixmap(pixmap);
}
