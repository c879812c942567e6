#include "ado/AdoError.h"

#include "store/StoreError.h"

namespace ado {

bool tellsOfBusyFile(const QString& description) {
  return description.contains(store::busyWords());
}

}  // namespace ado
