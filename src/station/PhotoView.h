#pragma once

#include <QImage>
#include <QWidget>

#include "graphics/Picture.h"

/// A portrait, as large as its room allows; the outline of a person where there is none.
class PhotoView : public QWidget {
 public:
  /// Named `name`.
  explicit PhotoView(const QString& name);

  /// Shows `photo`, which may be empty or damaged.
  void setPhoto(const graphics::PicturePointer& photo);
  /// Whether a photo is shown, and not the outline.
  [[nodiscard]] bool hasPhoto() const { return !m_image.isNull(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void drawOutline(QPainter& painter) const;

  QImage m_image;
};
