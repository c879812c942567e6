#pragma once

#include <chrono>

#include "store/SqlCipher.h"

namespace store {

/// How a file is opened, everywhere the same.
struct Opening {
  QString path;
  QString password;
  std::chrono::milliseconds wait{};
};

/// A handle on an existing database, its password tried, its settings made. Throws StoreError with a
/// description that tells what is wrong with the file.
[[nodiscard]] Handle openExisting(const Opening& opening);
/// A handle on an existing file that is empty and is to become a database.
[[nodiscard]] Handle openEmpty(const Opening& opening);

}  // namespace store
