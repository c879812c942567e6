#pragma once

#include <memory>

#include <QString>
#include <QStringList>

#include "store/Database.h"

namespace store {

/// Opens and creates database files. Every failure throws StoreError with a description that tells its cause.
class Engine {
 public:
  Engine() = default;
  Engine(const Engine&) = delete;
  Engine& operator=(const Engine&) = delete;
  virtual ~Engine() = default;

  /// Opens an existing file that holds at least one table. Never creates or changes a file.
  [[nodiscard]] virtual std::shared_ptr<Database> open(const QString& path, const QString& password) = 0;
  /// Creates a new file and runs `statements`, in the engine's dialect, in it. All or nothing; an existing
  /// file is never replaced.
  virtual void create(const QString& path, const QString& password, const QStringList& statements) = 0;
};

/// The engine in use: SQLCipher's unless another is installed.
[[nodiscard]] Engine& engine();
/// Installs `other` (null: SQLCipher's) and returns the one that was installed before (null: SQLCipher's).
/// The caller keeps ownership.
Engine* installEngine(Engine* other);

}  // namespace store
