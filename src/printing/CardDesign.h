#pragma once

#include <QSize>
#include <QString>

#include "report/Controls.h"

/// The sign-in card: what stands where on it, in which font, and what the settings change of it. Reports
/// print it, sheets lay it out, the design dialog shows it.
namespace card {

/// Twips, to the middle of the frame's lines.
inline constexpr QSize size{4677, 3260};

/// One of the lines whose text and font are the user's.
struct Line {
  /// Name of its label on the card.
  QString control;
  /// Its group in the settings.
  QString group;
};

[[nodiscard]] const Line& unitLine();
[[nodiscard]] const Line& memoLine();

/// The card by design, as the section of a report: a card and the space below it. Its logo is the default
/// one; name, department, number, photo and barcode are empty.
[[nodiscard]] report::Section design();

/// Gives the line's label the text, font and colour of the settings. Where they name no font, the one by
/// design stays.
void applyStyle(report::Section& section, const Line& line);

/// The logo of the cards.
struct Logo {
  graphics::PicturePointer picture;
  /// The file that the settings name; empty when they name none or it is gone.
  QString path;
  /// Why that file cannot be shown; the picture is then the default one.
  QString failure;
};

/// The logo of the settings while its file is there, else the default one. A file with a damaged picture is a
/// failure too.
[[nodiscard]] Logo storedLogo();

}  // namespace card
