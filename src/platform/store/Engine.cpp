#include "store/Engine.h"

#include <utility>

#include "store/SqlCipherEngine.h"

namespace store {

namespace {

Engine* installed = nullptr;

}  // namespace

Engine& engine() {
  static SqlCipherEngine standard;
  return installed != nullptr ? *installed : standard;
}

Engine* installEngine(Engine* other) {
  return std::exchange(installed, other);
}

}  // namespace store
