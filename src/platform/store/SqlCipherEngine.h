#pragma once

#include <chrono>

#include "store/Engine.h"

namespace store {

/// Encrypted files by SQLCipher: 4 KiB pages, rollback journal, synced at every commit.
class SqlCipherEngine : public Engine {
 public:
  /// How long an operation waits for a file that another process or connection has locked.
  static constexpr std::chrono::milliseconds usualWait{5000};

  explicit SqlCipherEngine(std::chrono::milliseconds wait = usualWait) : m_wait(wait) {}

  [[nodiscard]] std::shared_ptr<Database> open(const QString& path, const QString& password) override;
  void create(const QString& path, const QString& password, const QStringList& statements) override;

  /// The name and identity of the library that the program is linked to.
  [[nodiscard]] static QString version();

 private:
  std::chrono::milliseconds m_wait;
};

}  // namespace store
