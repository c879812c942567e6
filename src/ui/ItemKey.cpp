#include "ui/ItemKey.h"

namespace {
constexpr QLatin1String prefix{"KEYPRE"};
}

QString MakeItemKey(const QString& identifier) {
  return prefix + identifier;
}

QString ItemIdentifier(const QString& key) {
  return key.mid(prefix.size());
}
