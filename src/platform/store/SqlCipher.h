#pragma once

#define SQLITE_HAS_CODEC 1
#include <memory>
#include <sqlcipher/sqlite3.h>

#include <QString>

#include "runtime/RuntimeError.h"

/// What the files of the SQLCipher engine share. Nothing else sees the engine's header.
namespace store {

struct HandleCloser {
  void operator()(sqlite3* handle) const noexcept { sqlite3_close_v2(handle); }
};
using Handle = std::unique_ptr<sqlite3, HandleCloser>;

/// What a result code of the engine means.
[[nodiscard]] runtime::FailureKind failureKind(int code);
/// Throws the StoreError for `code`, with the engine's own words.
[[noreturn]] void throwEngineError(int code, const QString& words);
/// As above, for what last failed on `handle`.
[[noreturn]] void throwEngineError(sqlite3* handle);
/// The error of a page that cannot be read.
[[noreturn]] void throwDamage();
/// Runs statements without results.
void runPlain(sqlite3* handle, const char* sql);

}  // namespace store
