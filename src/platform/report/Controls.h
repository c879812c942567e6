#pragma once

#include <vector>

#include <QRect>
#include <QString>

#include "graphics/Fonts.h"
#include "graphics/Picture.h"

namespace report {

enum class ControlKind { Label, Image, Shape, Barcode, Line };

/// What a label, an image, a rectangle, a barcode or a line is by design. Positions and sizes are twips from
/// the section's top left corner; a line runs across or down, so its height or its width is 0.
struct Control {
  ControlKind Kind = ControlKind::Label;
  QString Name;
  int Left = 0;
  int Top = 0;
  int Width = 0;
  int Height = 0;
  /// Text of a label; text that a barcode encodes.
  QString Caption;
  graphics::FontDescription Font;
  /// Stored colour: red in the low byte, then green, then blue.
  int ForeColor = 0;
  Qt::Alignment Alignment = Qt::AlignLeft | Qt::AlignVCenter;
  /// Whether a label is drawn with a hairline around it.
  bool Border = false;
  /// Whether a label's text goes on over several lines where one is not enough.
  bool Wrap = false;
  graphics::PicturePointer Picture;

  [[nodiscard]] QRect rect() const { return {Left, Top, Width, Height}; }
  bool operator==(const Control&) const = default;
};

/// A band of the report. `Height` is twips; controls may stand outside of it.
struct Section {
  QString Name;
  int Height = 0;
  std::vector<Control> Controls;
  /// Name of the label whose text stands for a band in the table of contents; empty when bands are not
  /// listed.
  QString EntryControl;

  /// The control of that name. Throws runtime::RuntimeError when there is none.
  [[nodiscard]] Control& control(const QString& name);
};

}  // namespace report
