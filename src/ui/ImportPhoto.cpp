#include "ui/ImportPhoto.h"

#include "graphics/Picture.h"
#include "runtime/RuntimeError.h"

QImage photoAt(const QString& path, QSize room) {
  const graphics::PicturePointer picture = graphics::LoadPicture(path);
  const QImage image = picture->decode(room);
  if (image.isNull()) {
    throw runtime::RuntimeError(runtime::ErrorNumber::InvalidPicture, QStringLiteral("照片已损坏，无法显示"));
  }
  return image.scaled(room, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}
