#pragma once

#include <memory>

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>

namespace graphics {

/// A picture as the bytes of its file. It is decoded when it is drawn, so that a report can hold thousands.
class Picture {
 public:
  enum class Format { None, Jpeg, Other };

  Picture() = default;
  /// Reads the head of the bytes; throws runtime::RuntimeError (InvalidPicture) when they are no picture of
  /// an accepted format or its sides are unreasonable (0, or over 20,000 pixels). `name` is what the error
  /// calls it.
  Picture(QByteArray bytes, const QString& name);

  [[nodiscard]] bool isNull() const { return m_size.isEmpty(); }
  [[nodiscard]] Format format() const { return m_format; }
  /// The file's bytes, unchanged.
  [[nodiscard]] const QByteArray& bytes() const { return m_bytes; }
  /// Pixels, from the head of the file.
  [[nodiscard]] QSize size() const { return m_size; }
  /// The decoded picture, scaled down while decoding to no less than `atLeast` pixels when that is given. A
  /// null image when the body is damaged.
  [[nodiscard]] QImage decode(QSize atLeast = {}) const;

 private:
  QByteArray m_bytes;
  QSize m_size;
  Format m_format = Format::None;
};

using PicturePointer = std::shared_ptr<const Picture>;

/// The platform's picture loader: reads the file named `path`. Throws FileNotFound, FileIo or InvalidPicture,
/// each naming the file.
[[nodiscard]] PicturePointer LoadPicture(const QString& path);

}  // namespace graphics
