#pragma once

#include <optional>

#include <QByteArrayView>
#include <QString>
#include <QVariant>

namespace store {

/// What the engine knows of a column of a result.
struct ColumnInfo {
  QString name;
  /// As declared in the table, empty for an expression.
  QString declaredType;
  /// Where the values come from, empty for an expression.
  QString baseTable;
  QString baseColumn;
  /// The integer key by which the engine itself finds the row.
  bool rowKey = false;
  bool autoIncrement = false;
  bool notNull = false;
};

/// A prepared statement. Values are invalid for Null, qlonglong, double, QString or QByteArray. Every failure
/// throws StoreError. Between the first step and reset a statement may hold locks in the database.
class Statement {
 public:
  Statement() = default;
  Statement(const Statement&) = delete;
  Statement& operator=(const Statement&) = delete;
  virtual ~Statement() = default;

  /// Binds the parameter at `position`, counted from 1.
  virtual void bind(int position, const QVariant& value) = 0;
  /// Goes to the next row; false when there is none.
  [[nodiscard]] virtual bool step() = 0;
  /// Gives up the row and the locks and forgets the bound values; the statement can run again.
  virtual void reset() noexcept = 0;

  [[nodiscard]] virtual int columnCount() const = 0;
  [[nodiscard]] virtual ColumnInfo column(int index) const = 0;
  /// The value of the current row.
  [[nodiscard]] virtual QVariant value(int index) const = 0;
  /// The value of the current row when it is a text, in UTF-8 and not copied: it is gone with the next step.
  [[nodiscard]] virtual std::optional<QByteArrayView> text(int index) const = 0;
};

}  // namespace store
