#pragma once

#include <QImage>

#include "graphics/MetafileCanvas.h"
#include "graphics/MetafileRecord.h"

namespace graphics {

/// What a metafile's records describe. Each throws ShortRecord when the record ends before its description.
[[nodiscard]] MetafilePen wmfPen(const MetafileRecord& record);
[[nodiscard]] QBrush wmfBrush(const MetafileRecord& record);
/// A brush of a bitmap; the colour of the usual brush when it is damaged.
[[nodiscard]] QBrush wmfPattern(const MetafileRecord& record);
[[nodiscard]] MetafileFont wmfFont(const MetafileRecord& record);
/// A bitmap without the head that it has in a file of its own. Null when it is damaged or over 16 million
/// pixels.
[[nodiscard]] QImage wmfBitmap(QByteArrayView bytes);

}  // namespace graphics
