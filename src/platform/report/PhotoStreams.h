#pragma once

#include <vector>

#include <QByteArray>
#include <QIODevice>
#include <QImage>
#include <QSize>

namespace report {

/// A JPEG photo that takes the place of a single pixel.
struct EmbeddedPhoto {
  QByteArray bytes;
  QSize size;
  /// 1 gray, 3 colour.
  int components = 0;
};

/// The pixel that stands for photo `number` until replacePlaceholders().
[[nodiscard]] QImage placeholderPixel(std::size_t number);

/// Copies `pdf` to `target` with every placeholder replaced by its photo's own bytes and the rest packed.
/// False, and nothing written, when the placeholders in it are not those of `photos`, each once. Throws
/// runtime::RuntimeError.
[[nodiscard]] bool replacePlaceholders(const QByteArray& pdf, const std::vector<EmbeddedPhoto>& photos,
                                       QIODevice& target);

}  // namespace report
