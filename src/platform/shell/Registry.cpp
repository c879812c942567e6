#include "shell/Registry.h"

#include <QFile>
#include <QStringConverter>
#include <QStringTokenizer>

#include "runtime/ProgramDirectory.h"

namespace shell {

namespace {

constexpr qint64 largestFile = qint64{64} * 1024;
const QLatin1String numberMark("dword:");

/// The text of the file, empty when there is none to be had.
QString textOf(const QString& fileName) {
  QFile file(fileName);
  // A pipe in its place would never end.
  if (!runtime::isNormalFile(fileName) || !file.open(QIODevice::ReadOnly)) return {};
  const QByteArray bytes = file.read(largestFile + 1);
  if (bytes.size() > largestFile) return {};
  QStringDecoder decoder(QStringDecoder::Utf8);
  const QString text = decoder(bytes);
  return decoder.hasError() ? QString() : text;
}

bool isSameName(QStringView a, QStringView b) {
  return a.trimmed().compare(b.trimmed(), Qt::CaseInsensitive) == 0;
}

std::optional<QString> findValue(QStringView text, QStringView key, QStringView name) {
  bool inKey = false;
  for (const QStringView rawLine : qTokenize(text, u'\n')) {
    const QStringView line = rawLine.trimmed();
    if (line.startsWith(u'[') && line.endsWith(u']')) {
      inKey = isSameName(line.sliced(1, line.size() - 2), key);
      continue;
    }
    const qsizetype equals = line.indexOf(u'=');
    const bool comment = line.startsWith(u';') || line.startsWith(u'#');
    if (inKey && !comment && equals > 0 && isSameName(line.first(equals), name)) {
      return line.sliced(equals + 1).trimmed().toString();
    }
  }
  return std::nullopt;
}

std::optional<RegistryValue> numberOf(QStringView digits) {
  bool isNumber = false;
  const std::uint32_t number = digits.toUInt(&isNumber, 16);
  if (!isNumber) return std::nullopt;
  return number;
}

}  // namespace

std::optional<RegistryValue> registryValue(RootKey root, const QString& key, const QString& name) {
  const std::optional<QString> text = findValue(textOf(registryFile(root)), key, name);
  if (!text) return std::nullopt;
  if (text->startsWith(numberMark, Qt::CaseInsensitive)) {
    return numberOf(QStringView(*text).sliced(numberMark.size()));
  }
  return *text;
}

}  // namespace shell
