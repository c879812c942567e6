#include "graphics/Picture.h"

#include <algorithm>
#include <array>
#include <tuple>

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>

#include "graphics/EmfPicture.h"
#include "graphics/MetafileRecord.h"
#include "graphics/WmfPicture.h"
#include "runtime/RuntimeError.h"
#include "runtime/SystemWords.h"

namespace graphics {
namespace {

constexpr int longestSide = 20000;
constexpr qint64 largestFile = 64 * 1024 * 1024;

[[noreturn]] void refuse(const QString& name, const QString& reason) {
  throw runtime::RuntimeError(runtime::ErrorNumber::InvalidPicture,
                              QStringLiteral("图片“%1”无法读取：%2").arg(name, reason));
}

QSize measureWmf(const QByteArray& bytes, const QString& name) {
  try {
    return wmfSize(bytes);
  } catch (const ShortRecord&) {
    refuse(name, QStringLiteral("WMF 图元文件不完整"));
  }
}

bool isAccepted(const QByteArray& format) {
  static const std::array<QByteArray, 6> accepted{"bmp", "dib", "gif", "ico", "cur", "png"};
  return std::find(accepted.begin(), accepted.end(), format) != accepted.end();
}

/// An icon file holds the same picture in several sizes: the largest one is shown.
void chooseLargest(QImageReader& reader) {
  int largest = 0;
  qint64 largestArea = 0;
  for (int i = 0; i < reader.imageCount() && reader.jumpToImage(i); ++i) {
    const QSize size = reader.size();
    const qint64 area = static_cast<qint64>(size.width()) * size.height();
    if (area > largestArea) {
      largest = i;
      largestArea = area;
    }
  }
  reader.jumpToImage(largest);
}

/// Readies `reader` for the picture in `buffer`, whatever the name of its file said, and returns its format.
QByteArray prepare(QImageReader& reader, QBuffer& buffer) {
  reader.setDecideFormatFromContent(true);
  reader.setDevice(&buffer);
  QByteArray format = reader.format();
  if (format == "ico" || format == "cur") chooseLargest(reader);
  return format;
}

QString withUnit(qint64 bytes) {
  return QStringLiteral("%1 MB").arg(bytes / (1024 * 1024));
}

}  // namespace

Picture::Picture(QByteArray bytes, const QString& name) : m_bytes(std::move(bytes)) {
  if (m_bytes.isEmpty()) refuse(name, QStringLiteral("文件是空的"));
  readHead(name);
  if (m_size.width() < 1 || m_size.height() < 1 || m_size.width() > longestSide ||
      m_size.height() > longestSide) {
    refuse(name, QStringLiteral("尺寸 %1×%2 不合理").arg(m_size.width()).arg(m_size.height()));
  }
}

void Picture::readHead(const QString& name) {
  m_jpeg = readJpegHeader(m_bytes);
  if (m_jpeg) {
    m_format = Format::Jpeg;
    m_size = m_jpeg->isTurned() ? m_jpeg->size.transposed() : m_jpeg->size;
    return;
  }
  if (isWmf(m_bytes)) {
    m_format = Format::Wmf;
    m_size = measureWmf(m_bytes, name);
    return;
  }
  if (isEmf(m_bytes)) {
    readEmf(name);
    return;
  }
  QBuffer buffer(&m_bytes);
  QImageReader reader;
  if (!isAccepted(prepare(reader, buffer))) refuse(name, QStringLiteral("不是可识别的图片格式"));
  m_format = Format::Other;
  m_size = reader.size();
}

void Picture::readEmf(const QString& name) {
  m_format = Format::Emf;
  try {
    const EmfDrawing drawing = convertEmf(m_bytes);
    m_svg = drawing.svg;
    m_size = drawing.size;
  } catch (const EmfFailure& failure) {
    refuse(name, failure.reason);
  }
}

QImage Picture::decodeMetafile(QSize atLeast) const {
  const QSize target = atLeast.isEmpty() ? m_size : m_size.scaled(atLeast, Qt::KeepAspectRatioByExpanding);
  const QSize pixels = target.width() < m_size.width() ? target : m_size;
  return m_format == Format::Wmf ? drawWmf(m_bytes, pixels) : drawEmf(m_svg, pixels);
}

QImage Picture::decode(QSize atLeast) const {
  if (isNull()) return {};
  if (m_format == Format::Wmf || m_format == Format::Emf) return decodeMetafile(atLeast);
  QBuffer buffer;
  buffer.setData(m_bytes);
  QImageReader reader;
  std::ignore = prepare(reader, buffer);
  reader.setAutoTransform(true);
  if (!atLeast.isEmpty()) {
    const QSize target = m_size.scaled(atLeast, Qt::KeepAspectRatioByExpanding);
    if (target.width() < m_size.width()) reader.setScaledSize(isTurned() ? target.transposed() : target);
  }
  return reader.read();
}

PicturePointer LoadPicture(const QString& path) {
  QFile file(path);
  // Unbuffered: the file is read in one piece.
  if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
    if (!QFileInfo::exists(path)) {
      throw runtime::RuntimeError(runtime::ErrorNumber::FileNotFound,
                                  QStringLiteral("找不到图片文件“%1”").arg(path));
    }
    throw runtime::RuntimeError(
        runtime::ErrorNumber::FileIo,
        QStringLiteral("图片文件“%1”无法打开：%2").arg(path, runtime::systemWords(file.errorString())));
  }
  const qint64 size = file.size();
  if (size > largestFile) refuse(path, QStringLiteral("文件超过 %1").arg(withUnit(largestFile)));
  QByteArray bytes = file.read(size);
  if (file.error() != QFileDevice::NoError) {
    throw runtime::RuntimeError(
        runtime::ErrorNumber::FileIo,
        QStringLiteral("图片文件“%1”无法读取：%2").arg(path, runtime::systemWords(file.errorString())));
  }
  return std::make_shared<const Picture>(std::move(bytes), path);
}

}  // namespace graphics
