#pragma once

#include <memory>
#include <optional>

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>

#include "graphics/JpegHeader.h"

namespace graphics {

/// A picture as the bytes of its file. It is decoded when it is drawn, so that a report can hold thousands.
class Picture {
 public:
  enum class Format { None, Jpeg, Wmf, Emf, Other };

  Picture() = default;
  /// Reads the head of the bytes; throws runtime::RuntimeError (InvalidPicture) when they are no picture of
  /// an accepted format or its sides are unreasonable (0, or over 20,000 pixels). `name` is what the error
  /// calls it.
  Picture(QByteArray bytes, const QString& name);

  [[nodiscard]] bool isNull() const { return m_size.isEmpty(); }
  [[nodiscard]] Format format() const { return m_format; }
  /// The file's bytes, unchanged.
  [[nodiscard]] const QByteArray& bytes() const { return m_bytes; }
  /// What the head of a JPEG file says; nothing for other formats.
  [[nodiscard]] const std::optional<JpegHeader>& jpeg() const { return m_jpeg; }
  /// Pixels, from the head of the file, as the picture is to be seen: a photo taken with the camera on its
  /// side is turned.
  [[nodiscard]] QSize size() const { return m_size; }
  /// The decoded picture, turned as it is to be seen; scaled down while decoding to no less than `atLeast`
  /// pixels when that is given. A null image when the body is damaged.
  [[nodiscard]] QImage decode(QSize atLeast = {}) const;

 private:
  [[nodiscard]] bool isTurned() const { return m_jpeg && m_jpeg->isTurned(); }
  void readHead(const QString& name);
  void readEmf(const QString& name);
  [[nodiscard]] QImage decodeMetafile(QSize atLeast) const;

  QByteArray m_bytes;
  /// What an enhanced metafile is drawn from.
  QByteArray m_svg;
  QSize m_size;
  Format m_format = Format::None;
  std::optional<JpegHeader> m_jpeg;
};

using PicturePointer = std::shared_ptr<const Picture>;

/// The platform's picture loader: reads the file named `path`, at most 64 MB. Throws FileNotFound, FileIo or
/// InvalidPicture, each naming the file.
[[nodiscard]] PicturePointer LoadPicture(const QString& path);

}  // namespace graphics
