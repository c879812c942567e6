#pragma once

#include <QByteArrayView>
#include <QImage>
#include <QSize>

namespace graphics {

/// Whether the bytes begin as a Windows metafile, with or without the head that places it.
[[nodiscard]] bool isWmf(QByteArrayView bytes);
/// The pixels that the metafile should be drawn with: its proportions at a side of 1,200, an empty size when
/// it has none, the absurd size itself when that is over 20,000 pixels at 96 to the inch. Throws ShortRecord
/// when its records don't reach from head to end.
[[nodiscard]] QSize wmfSize(QByteArrayView bytes);
/// Draws the metafile, of which wmfSize() gave a size, on white. Records that are unknown or too short for
/// what they should say are left out. A null image when drawing takes longer than three seconds.
[[nodiscard]] QImage drawWmf(QByteArrayView bytes, QSize size);

}  // namespace graphics
