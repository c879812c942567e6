#pragma once

#include <QFont>
#include <QString>

namespace graphics {

/// A font as the card's settings and the reports describe it.
struct FontDescription {
  QString name;
  /// Points.
  double size = 10;
  bool bold = false;
  bool italic = false;

  bool operator==(const FontDescription&) const = default;
};

/// The font to draw `description` with on a device whose unit is one twip: the family is replaced by one that
/// this system has and that looks closest, the size is set in twips, hinting is off so that the layout is the
/// same on screen and on paper.
[[nodiscard]] QFont twipFont(const FontDescription& description);
/// `points` made a size that can be drawn: 10 when it is no number or not above 0, else between 1 and 500.
[[nodiscard]] double drawableSize(double points);
/// The family that stands in for `name`, `name` itself when this system has it.
[[nodiscard]] QString substituteFamily(const QString& name);
/// The font of the windows.
[[nodiscard]] QFont userInterfaceFont();

}  // namespace graphics
