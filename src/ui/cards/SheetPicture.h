#pragma once

#include <QPainter>
#include <QWidget>

#include "printing/CardSheet.h"

/// A small picture of the first sheet: which places get a card, and which are left out because they are used
/// already. A click on a place, or the arrow keys, choose where the cards start.
class SheetPicture : public QWidget {
  Q_OBJECT

 public:
  explicit SheetPicture(const char* name);

  /// `cards` is the number of all cards, on whatever sheet.
  void setSheet(const CardSheet& sheet, int cards);
  /// Where the picture shows that place.
  [[nodiscard]] QRectF placeBox(int place) const;

 signals:
  /// The user chose the place where the cards start.
  void startChosen(int place);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  [[nodiscard]] double scale() const;
  void drawPlace(QPainter& painter, int place) const;
  void drawCutLines(QPainter& painter) const;

  CardSheet m_sheet;
  int m_cards = 0;
};
