#include "report/ControlPrimitives.h"

#include <algorithm>
#include <optional>

#include "graphics/Twips.h"
#include "report/Code128.h"
#include "report/TextFitting.h"
#include "runtime/RuntimeError.h"

namespace report {
namespace {

constexpr double frameWidth = 15;
constexpr double hairline = 5;
/// Modules on either side of a barcode that must stay white.
constexpr int quietModules = 10;
/// The lower the digits below the bars, the higher the bars, and so the further a scan may be askew.
constexpr double captionHeight = 130;

void append(std::vector<Primitive>& primitives, const Control& control, decltype(Primitive::shape) shape) {
  primitives.push_back({control.Name, std::move(shape)});
}

void appendText(std::vector<Primitive>& primitives, const Control& control, const QRectF& box) {
  if (control.Caption.isEmpty() || box.isEmpty()) return;
  FittedText fitted = fitText(control.Caption, control.Font, box.size());
  append(primitives, control,
         TextPrimitive{box, std::move(fitted.text), std::move(fitted.font), control.ForeColor,
                       control.Alignment});
}

/// The lines stand close together in the middle of the box.
void appendLines(std::vector<Primitive>& primitives, const Control& control, const QRectF& box) {
  if (control.Caption.isEmpty() || box.isEmpty()) return;
  const std::vector<FittedText> lines = wrapText(control.Caption, control.Font, box.size());
  if (lines.size() == 1) return appendText(primitives, control, box);
  const double height = lineHeight(lines.front().font);
  QRectF line(box.left(), box.center().y() - height * static_cast<double>(lines.size()) / 2, box.width(),
              height);
  for (const FittedText& text : lines) {
    append(primitives, control,
           TextPrimitive{line, text.text, text.font, control.ForeColor, control.Alignment});
    line.translate(0, height);
  }
}

void appendLabel(std::vector<Primitive>& primitives, const Control& control, const QRectF& box) {
  if (control.Border) append(primitives, control, BoxPrimitive{box, hairline});
  if (control.Wrap) return appendLines(primitives, control, box);
  appendText(primitives, control, box);
}

void appendImage(std::vector<Primitive>& primitives, const Control& control, const QRectF& box) {
  PicturePrimitive shape{box, control.Picture};
  if (control.Picture && !control.Picture->isNull()) {
    shape.box.setSize(QSizeF(control.Picture->size()).scaled(box.size(), Qt::KeepAspectRatio));
    shape.box.moveCenter(box.center());
  }
  append(primitives, control, std::move(shape));
}

std::optional<BarcodeSymbol> tryEncode(const QString& text) {
  try {
    return encodeCode128(text);
  } catch (const runtime::RuntimeError&) {
    // The text alone is drawn, so the card shows what could not be encoded.
    return std::nullopt;
  }
}

BarsPrimitive makeBars(const BarcodeSymbol& symbol, const QRectF& box) {
  const double module = box.width() / (symbol.modules + 2 * quietModules);
  BarsPrimitive shape;
  shape.bars.reserve(symbol.bars.size());
  for (const Bar& bar : symbol.bars) {
    shape.bars.emplace_back(box.left() + (quietModules + bar.left) * module, box.top(), bar.width * module,
                            box.height());
  }
  return shape;
}

void appendBarcode(std::vector<Primitive>& primitives, const Control& control, const QRectF& box) {
  const std::optional<BarcodeSymbol> symbol = tryEncode(control.Caption);
  const double digits = std::min(captionHeight, box.height() / 2);
  QRectF captionBox = box;
  if (symbol) {
    append(primitives, control, makeBars(*symbol, box.adjusted(0, 0, 0, -digits)));
    captionBox.setTop(box.bottom() - digits);
  }
  Control caption = control;
  caption.Font.size = std::min(graphics::drawableSize(control.Font.size), digits / graphics::twipsPerPoint);
  appendText(primitives, caption, captionBox);
}

}  // namespace

void appendControl(std::vector<Primitive>& primitives, const Control& control, QPoint origin) {
  const QRectF box(control.rect().translated(origin));
  switch (control.Kind) {
    case ControlKind::Label:
      return appendLabel(primitives, control, box);
    case ControlKind::Image:
      return appendImage(primitives, control, box);
    case ControlKind::Shape:
      return append(primitives, control, BoxPrimitive{box, frameWidth});
    case ControlKind::Barcode:
      return appendBarcode(primitives, control, box);
    case ControlKind::Line:
      return append(primitives, control, BoxPrimitive{box, hairline});
  }
}

}  // namespace report
