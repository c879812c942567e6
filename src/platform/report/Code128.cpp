#include "report/Code128.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <zint.h>

#include "runtime/RuntimeError.h"

namespace report {
namespace {

/// The library draws in units of half a module.
constexpr int unitsPerModule = 2;

struct DeleteSymbol {
  void operator()(zint_symbol* symbol) const { ZBarcode_Delete(symbol); }
};
using SymbolPointer = std::unique_ptr<zint_symbol, DeleteSymbol>;

[[noreturn]] void refuse(const QString& text, const QString& reason) {
  throw runtime::RuntimeError(runtime::ErrorNumber::InvalidCall,
                              QStringLiteral("“%1”无法编成条形码：%2").arg(text, reason));
}

bool isPrintable(QChar character) {
  return character.unicode() >= 0x20 && character.unicode() <= 0x7E;
}

int toModules(float units) {
  return static_cast<int>(std::lround(units / unitsPerModule));
}

}  // namespace

BarcodeSymbol encodeCode128(const QString& text) {
  if (text.isEmpty()) refuse(text, QStringLiteral("没有内容"));
  if (!std::all_of(text.begin(), text.end(), isPrintable)) {
    refuse(text, QStringLiteral("只能使用 ASCII 可见字符"));
  }
  const SymbolPointer symbol(ZBarcode_Create());
  if (!symbol) throw std::bad_alloc();
  symbol->symbology = BARCODE_CODE128;
  symbol->show_hrt = 0;
  const QByteArray bytes = text.toLatin1();
  const int result = ZBarcode_Encode_and_Buffer_Vector(
      symbol.get(), reinterpret_cast<const unsigned char*>(bytes.constData()), static_cast<int>(bytes.size()),
      0);
  if (result >= ZINT_ERROR || symbol->vector == nullptr) refuse(text, QString::fromUtf8(symbol->errtxt));

  BarcodeSymbol encoded;
  encoded.modules = toModules(symbol->vector->width);
  for (const zint_vector_rect* bar = symbol->vector->rectangles; bar != nullptr; bar = bar->next) {
    encoded.bars.push_back({toModules(bar->x), toModules(bar->width)});
  }
  return encoded;
}

}  // namespace report
