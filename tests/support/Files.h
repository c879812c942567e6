#pragma once

#include <gtest/gtest.h>

#include <QFile>

namespace support {

/// Bytes of the file, "<no file>" when it cannot be read.
inline QByteArray contentOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<no file>");
}

/// Makes or replaces the file; the test fails when that does.
inline void writeFile(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  ASSERT_EQ(file.write(bytes), bytes.size());
}

/// Turns over the bits of the byte at `place`; a negative one counts from the end.
inline void damageFile(const QString& path, qint64 place) {
  QByteArray bytes = contentOf(path);
  const qint64 at = place < 0 ? bytes.size() + place : place;
  bytes[at] = static_cast<char>(~bytes.at(at));
  writeFile(path, bytes);
}

}  // namespace support
