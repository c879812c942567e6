// Draws whatever the fuzzer makes of the seeds as a Windows metafile. Only the error about a picture may come
// out.

#include <cstddef>
#include <cstdint>
#include <tuple>

#include <QGuiApplication>

#include "graphics/Picture.h"
#include "runtime/RuntimeError.h"

extern "C" int LLVMFuzzerInitialize(int* count, char*** arguments) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  static const QGuiApplication application(*count, *arguments);
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  try {
    const graphics::Picture picture(bytes, QStringLiteral("fuzz"));
    // Other formats are the toolkit's affair.
    if (picture.format() == graphics::Picture::Format::Wmf) std::ignore = picture.decode({64, 64});
  } catch (const runtime::RuntimeError&) {
    return -1;
  }
  return 0;
}
