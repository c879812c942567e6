#pragma once

#include <QWidget>

#include "report/Controls.h"

/// A line of the card on the screen, drawn as the report draws its label: what does not fit is smaller here
/// too.
class CardText : public QWidget {
 public:
  /// Its name and its place on the card are those of `label`.
  explicit CardText(const report::Control& label);

  [[nodiscard]] const report::Control& label() const { return m_label; }
  void setLabel(const report::Control& label);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  report::Control m_label;
};
