#pragma once

#include <QByteArray>

namespace graphics {

/// The metafile as SVG, by the program emf2svg-conv: a process of its own, because the files come from
/// anywhere and a damaged one must not harm this one. It has 512 MB and five seconds. Throws EmfFailure when
/// the program is missing, fails, takes longer or writes more than 16 MB.
[[nodiscard]] QByteArray svgOfEmf(const QByteArray& metafile);

}  // namespace graphics
