#pragma once

#include <QImage>
#include <QSize>
#include <QString>

/// The photo in the file at `path`, as large as fits into `room` pixels. Throws runtime::RuntimeError when
/// the file cannot be read or is no picture, an unreasonably large one or a damaged one.
[[nodiscard]] QImage photoAt(const QString& path, QSize room);
