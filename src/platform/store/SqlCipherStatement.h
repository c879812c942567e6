#pragma once

#include <vector>

#include <QByteArray>

#include "store/SqlCipher.h"
#include "store/Statement.h"

namespace store {

class SqlCipherStatement : public Statement {
 public:
  SqlCipherStatement(sqlite3* handle, const QString& sql);
  ~SqlCipherStatement() override;

  void bind(int position, const QVariant& value) override;
  bool step() override;
  void reset() noexcept override;
  [[nodiscard]] int columnCount() const override;
  [[nodiscard]] ColumnInfo column(int index) const override;
  [[nodiscard]] QVariant value(int index) const override;
  [[nodiscard]] std::optional<QByteArrayView> text(int index) const override;

 private:
  [[nodiscard]] bool holdsLongBinary() const;
  void requireWholePages();
  [[nodiscard]] QByteArray bytes(int index) const;

  sqlite3* m_handle;
  sqlite3_stmt* m_statement = nullptr;
  /// Reads one page; made when first needed.
  sqlite3_stmt* m_probe = nullptr;
  /// Long binaries are bound where they stand.
  std::vector<QByteArray> m_bound;
};

}  // namespace store
