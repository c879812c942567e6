#include "ui/ItemKey.h"

#include "runtime/Conversions.h"
#include "runtime/RuntimeError.h"

namespace {
constexpr QLatin1String prefix{"KEYPRE"};
}

QString MakeItemKey(const QString& identifier) {
  return prefix + identifier;
}

QString ItemIdentifier(const QString& key) {
  return key.mid(prefix.size());
}

std::int16_t DeptNumber(const QString& identifier) {
  try {
    return runtime::toInt16(identifier);
  } catch (const runtime::RuntimeError& error) {
    throw error.reworded(QStringLiteral("部门号[") + identifier + QStringLiteral("]：") +
                         error.description());
  }
}
