#include "ui/cards/CardFace.h"

#include <QPainter>
#include <QPainterPath>

#include "graphics/Fonts.h"
#include "graphics/Twips.h"

namespace {

constexpr double enlargement = 1.6;

// The card's own measures, twips.
constexpr QRectF card(0, 0, 4677, 3260);
constexpr QRectF logo(142, 142, 567, 567);
constexpr QRectF unitLine(709, 283, 3826, 567);
constexpr QRectF memoLine(142, 2835, 1500, 283);
constexpr QRectF photo(710, 992, 1131, 1701);
constexpr QRectF barcode(1901, 2835, 2434, 180);

const QColor shade(0xd7, 0xdf, 0xe8);
const QColor ink(0x90, 0x98, 0xa2);

void drawPortrait(QPainter& painter) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(shade);
  painter.drawRect(photo);
  painter.setBrush(Qt::white);
  painter.drawEllipse(photo.center() + QPointF(0, -250), 300, 340);
  QPainterPath shoulders;
  shoulders.addEllipse(photo.center() + QPointF(0, 900), 520, 720);
  QPainterPath frame;
  frame.addRect(photo);
  painter.drawPath(shoulders.intersected(frame));
}

void drawBarcode(QPainter& painter) {
  painter.setBrush(ink);
  constexpr int step = 60;
  for (int x = 0; x < barcode.width() - step; x += step) {
    const double width = (x / step) % 3 == 1 ? 36 : 18;
    painter.drawRect(QRectF(barcode.left() + x, barcode.top(), width, barcode.height()));
  }
}

void drawCaptions(QPainter& painter) {
  painter.setPen(ink);
  painter.setFont(graphics::twipFont({QStringLiteral("宋体"), 10.5}));
  constexpr double left = 2693;
  double top = 1134;
  for (const QString& caption :
       {QStringLiteral("姓名  张三"), QStringLiteral("岗位  教务处"), QStringLiteral("编号  A0001")}) {
    painter.drawText(QRectF(left, top, 1700, 283), Qt::AlignLeft | Qt::AlignVCenter, caption);
    top += 637;
  }
}

}  // namespace

CardFace::CardFace()
    : imgCard(new QLabel(this)),
      imgLogo(new QLabel(this)),
      lblUnit(new CardText("lblUnit", unitLine.size(), Qt::AlignCenter)),
      lblMemo(new CardText("lblMemo", memoLine.size(), Qt::AlignLeft | Qt::AlignVCenter)) {
  imgCard->setObjectName(QStringLiteral("imgCard"));
  imgLogo->setObjectName(QStringLiteral("imgLogo"));
  imgLogo->setAlignment(Qt::AlignCenter);
  lblUnit->setParent(this);
  lblMemo->setParent(this);
  setFixedSize(onScreen(card).size());
  place(*imgCard, card);
  place(*imgLogo, logo);
  place(*lblUnit, unitLine);
  place(*lblMemo, memoLine);
  imgCard->setPixmap(background());
}

QRect CardFace::onScreen(const QRectF& box) const {
  const auto pixels = [this](double twips) {
    return graphics::twipsToPixels(twips * enlargement, logicalDpiX());
  };
  return {pixels(box.left()), pixels(box.top()), pixels(box.width()), pixels(box.height())};
}

void CardFace::place(QWidget& child, const QRectF& box) {
  child.setGeometry(onScreen(box));
}

QPixmap CardFace::background() const {
  QPixmap pixmap(size() * devicePixelRatio());
  pixmap.setDevicePixelRatio(devicePixelRatio());
  pixmap.fill(Qt::white);
  QPainter painter(&pixmap);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  painter.scale(width() / card.width(), height() / card.height());
  drawPortrait(painter);
  drawBarcode(painter);
  drawCaptions(painter);
  painter.setPen(QPen(Qt::black, 30));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(card.adjusted(15, 15, -15, -15));
  return pixmap;
}

void CardFace::setLogo(const graphics::Picture& picture) {
  const QSize room = imgLogo->size() * devicePixelRatio();
  QPixmap pixmap =
      QPixmap::fromImage(picture.decode(room).scaled(room, Qt::KeepAspectRatio, Qt::SmoothTransformation));
  pixmap.setDevicePixelRatio(devicePixelRatio());
  imgLogo->setPixmap(pixmap);
}
