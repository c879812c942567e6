#pragma once

#include <QLabel>

#include "graphics/Picture.h"
#include "printing/CardDesign.h"
#include "ui/cards/CardText.h"

/// A card on the screen, larger than life, as it will be printed: that of somebody made up is the background,
/// unit line, memo and logo stand on it in their places. The children lblUnit, lblMemo and imgLogo are found
/// by their names.
class CardFace : public QWidget {
 public:
  CardFace();

  [[nodiscard]] CardText& unit() { return *lblUnit; }
  [[nodiscard]] CardText& memo() { return *lblMemo; }
  /// Shows the picture in the logo's place, in its own proportions. It must not be null.
  void setLogo(const graphics::Picture& picture);

 private:
  /// The place on the screen of a box of the card, twips.
  [[nodiscard]] QRect onScreen(const QRect& box) const;
  [[nodiscard]] QPixmap background(const report::Section& sample) const;

  QLabel* imgCard;
  QLabel* imgLogo;
  CardText* lblUnit;
  CardText* lblMemo;
};
