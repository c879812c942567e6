#include "runtime/CodePage.h"

#include <QStringDecoder>
#include <QStringEncoder>

namespace runtime {

namespace {
constexpr const char* codePage = "GBK";
}

std::optional<QByteArray> toCodePage(const QString& text) {
  QStringEncoder encode(codePage, QStringConverter::Flag::Stateless);
  QByteArray bytes = encode(text);
  if (encode.hasError()) return std::nullopt;
  return bytes;
}

QString fromCodePage(const QByteArray& bytes) {
  QStringDecoder decode(codePage);
  return decode(bytes);
}

}  // namespace runtime
