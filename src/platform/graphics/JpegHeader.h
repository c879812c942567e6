#pragma once

#include <optional>

#include <QByteArrayView>
#include <QSize>

namespace graphics {

/// What the segments before a JPEG's picture data say.
struct JpegHeader {
  /// Pixels as they are stored, before any turning.
  QSize size;
  /// 1 gray, 3 colour, 4 print colours.
  int components = 0;
  /// How the stored picture is to be turned and mirrored, 1 to 8; 1 is as it is.
  int orientation = 1;
  /// Whether every reader of JPEG data shows it with the same colours without further knowledge: 8 bits,
  /// baseline or progressive, gray or the usual colour form.
  bool common = false;
  /// Whether the end of the picture data is there.
  bool complete = false;

  /// Whether width and height change places when the picture is turned as it is to be seen.
  [[nodiscard]] bool isTurned() const { return orientation >= 5; }
};

/// Reads the segments up to the picture data. Nothing when `bytes` is no JPEG file or ends before the data.
[[nodiscard]] std::optional<JpegHeader> readJpegHeader(QByteArrayView bytes);

}  // namespace graphics
