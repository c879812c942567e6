#pragma once

#include <QWidget>

#include "graphics/Fonts.h"

/// A line of the card on the screen, fitted into its box and drawn as the report draws it: what does not fit
/// is smaller here too.
class CardText : public QWidget {
 public:
  /// `box` is the line's place on the card, twips.
  CardText(const char* name, QSizeF box, Qt::Alignment alignment);

  struct Look {
    QString caption;
    graphics::FontDescription font;
    /// A stored colour.
    int color = 0;

    bool operator==(const Look&) const = default;
  };

  [[nodiscard]] const Look& look() const { return m_look; }
  void setLook(const Look& look);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QSizeF m_box;
  Qt::Alignment m_alignment;
  Look m_look;
};
