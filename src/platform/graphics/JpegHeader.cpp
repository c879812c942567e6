#include "graphics/JpegHeader.h"

namespace graphics {
namespace {

constexpr int startOfScan = 0xDA;
constexpr int endOfImage = 0xD9;
constexpr int applicationData1 = 0xE1;
constexpr int orientationTag = 0x0112;

int byteAt(QByteArrayView bytes, qsizetype at) {
  return static_cast<unsigned char>(bytes[at]);
}

/// A number of the tag directory, in the byte order that the directory declares. -1 beyond the end.
class TagReader {
 public:
  explicit TagReader(QByteArrayView bytes) : m_bytes(bytes), m_littleEndian(bytes.startsWith("II")) {}

  [[nodiscard]] qint64 number(qint64 at, int length) const {
    if (at < 0 || at + length > m_bytes.size()) return -1;
    qint64 value = 0;
    for (int i = 0; i < length; ++i) {
      value = value * 256 + byteAt(m_bytes, at + (m_littleEndian ? length - 1 - i : i));
    }
    return value;
  }

 private:
  QByteArrayView m_bytes;
  bool m_littleEndian;
};

int orientationOf(QByteArrayView segment) {
  constexpr QByteArrayView mark("Exif\0\0", 6);
  if (!segment.startsWith(mark)) return 1;
  const TagReader tags(segment.sliced(mark.size()));
  const qint64 directory = tags.number(4, 4);
  const qint64 count = directory < 0 ? 0 : tags.number(directory, 2);
  for (qint64 i = 0; i < count; ++i) {
    const qint64 entry = directory + 2 + i * 12;
    if (tags.number(entry, 2) != orientationTag) continue;
    const qint64 value = tags.number(entry + 8, 2);
    return value >= 1 && value <= 8 ? static_cast<int>(value) : 1;
  }
  return 1;
}

bool isFrame(int marker) {
  return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

/// Components named R, G and B are stored without the usual colour transform, and not every reader knows.
bool namesRgb(QByteArrayView segment) {
  return segment.size() >= 15 && segment[6] == 'R' && segment[9] == 'G' && segment[12] == 'B';
}

bool readFrame(JpegHeader& header, int marker, QByteArrayView segment) {
  if (segment.size() < 6) return false;
  header.size = {byteAt(segment, 3) * 256 + byteAt(segment, 4),
                 byteAt(segment, 1) * 256 + byteAt(segment, 2)};
  header.components = byteAt(segment, 5);
  header.common = marker <= 0xC2 && byteAt(segment, 0) == 8 &&
                  (header.components == 1 || (header.components == 3 && !namesRgb(segment)));
  return true;
}

bool hasEnd(QByteArrayView data) {
  constexpr char end[] = {'\xFF', static_cast<char>(endOfImage)};
  return data.lastIndexOf(QByteArrayView(end, 2)) >= 0;
}

bool standsAlone(int marker) {
  return marker == 0x01 || (marker >= 0xD0 && marker <= 0xD8);
}

}  // namespace

std::optional<JpegHeader> readJpegHeader(QByteArrayView bytes) {
  if (!bytes.startsWith("\xFF\xD8\xFF")) return std::nullopt;
  JpegHeader header;
  qsizetype at = 2;
  while (at + 4 <= bytes.size()) {
    if (byteAt(bytes, at) != 0xFF) return std::nullopt;
    const int marker = byteAt(bytes, at + 1);
    if (marker == 0xFF || standsAlone(marker)) {
      at += marker == 0xFF ? 1 : 2;
      continue;
    }
    const qsizetype length = byteAt(bytes, at + 2) * 256 + byteAt(bytes, at + 3);
    if (marker == endOfImage || length < 2 || at + 2 + length > bytes.size()) return std::nullopt;
    const QByteArrayView segment = bytes.sliced(at + 4, length - 2);
    at += 2 + length;
    if (marker == startOfScan) {
      header.complete = hasEnd(bytes.sliced(at));
      return header.components > 0 ? std::optional(header) : std::nullopt;
    }
    if (isFrame(marker) && !readFrame(header, marker, segment)) return std::nullopt;
    if (marker == applicationData1 && header.orientation == 1) header.orientation = orientationOf(segment);
  }
  return std::nullopt;
}

}  // namespace graphics
