#pragma once

#include <QImage>
#include <QSize>
#include <QVariant>

/// Writes `image`, the value of a photo column, over the file at `path`. Throws runtime::RuntimeError when it
/// is Null or the file cannot be written in full.
void savePhoto(const QVariant& image, const QString& path);
/// The photo in the file at `path`, as large as fits into `room` pixels. Throws runtime::RuntimeError when
/// the file cannot be read or is no picture, an unreasonably large one or a damaged one.
[[nodiscard]] QImage photoAt(const QString& path, QSize room);
