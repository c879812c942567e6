#pragma once

#include "store/Database.h"
#include "store/SqlCipherOpening.h"

namespace store {

class SqlCipherDatabase : public Database {
 public:
  explicit SqlCipherDatabase(const Opening& opening);
  ~SqlCipherDatabase() override;

  [[nodiscard]] qint64 lastInsertedKey() const override;
  [[nodiscard]] qint64 totalChanges() const override;
  [[nodiscard]] bool inTransaction() const override;
  void copyTo(const QString& path) override;
  [[nodiscard]] QStringList checkPages() override;

 protected:
  std::shared_ptr<Statement> prepare(const QString& sql) override;

 private:
  Opening m_opening;
  Handle m_handle;
};

}  // namespace store
