#include "ado/TextOrder.h"

#include "store/JetCollation.h"

namespace ado {

bool TextOrder::operator()(const QString& a, const QString& b) const {
  return store::compareJet(a.toStdString(), b.toStdString()) < 0;
}

}  // namespace ado
