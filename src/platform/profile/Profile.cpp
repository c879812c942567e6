#include "profile/Profile.h"

#include <algorithm>
#include <optional>

#include <QFile>

#include "profile/ProfileText.h"
#include "runtime/ProgramDirectory.h"
#include "runtime/ReplacingFile.h"
#include "runtime/RuntimeError.h"

namespace profile {

namespace {

/// The content of the file; nothing when it cannot be read.
std::optional<QByteArray> contentOf(const QString& fileName) {
  QFile file(fileName);
  if (!runtime::isNormalFile(fileName) || !file.open(QIODevice::ReadOnly)) return std::nullopt;
  QByteArray bytes = file.readAll();
  if (file.error() != QFileDevice::NoError) return std::nullopt;
  return bytes;
}

}  // namespace

int GetPrivateProfileStringA(const QByteArray& section, const QByteArray& key, const QByteArray& defaultValue,
                             char* buffer, int size, const QString& fileName) {
  if (size <= 0) return 0;
  const ProfileText text(contentOf(fileName).value_or(QByteArray()));
  const QByteArray value = text.value(section, key).value_or(defaultValue);
  const auto copied = static_cast<int>(std::min<qsizetype>(value.size(), size - 1));
  std::copy_n(value.constData(), copied, buffer);
  buffer[copied] = '\0';
  return copied;
}

bool WritePrivateProfileStringA(const QByteArray& section, const QByteArray& key, const QByteArray& value,
                                const QString& fileName) {
  const std::optional<QByteArray> before = QFile::exists(fileName) ? contentOf(fileName) : QByteArray();
  if (!before) return false;
  ProfileText text(*before);
  if (!text.setValue(section, key, value)) return false;
  try {
    runtime::replaceFile(fileName, text.bytes());
  } catch (const runtime::RuntimeError&) {
    return false;  // the call has no more to say than whether it wrote
  }
  return true;
}

}  // namespace profile
