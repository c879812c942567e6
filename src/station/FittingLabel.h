#pragma once

#include <QLabel>

/// A line of text as large as its room allows, so that it is read from a distance; a long one is made smaller
/// and, when it would be too small to read, cut.
class FittingLabel : public QLabel {
 public:
  /// Named `name`.
  explicit FittingLabel(const QString& name, Qt::Alignment alignment = Qt::AlignCenter);

  [[nodiscard]] QSize sizeHint() const override { return {}; }
  [[nodiscard]] QSize minimumSizeHint() const override { return {}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  [[nodiscard]] QFont fittingFont() const;
};
