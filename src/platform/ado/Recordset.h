#pragma once

#include <memory>

#include <QString>
#include <QVariant>

#include "ado/Connection.h"
#include "ado/Field.h"

namespace ado {

enum class CursorType { ForwardOnly = 0, Keyset = 1 };
enum class LockType { ReadOnly = 1, Optimistic = 3 };

/// Formats of Save.
enum class PersistFormat { Xml = 1 };

class RowSource;

/// The rows of a query or of a file. Open on a query it holds no lock in the database: the rows are copied
/// without their long binaries, and a long binary is fetched by its row's key when its value is asked for.
///
/// Every failure is an AdoError: a bad statement, a missing connection, a name that is no column, a row that
/// is not there.
class Recordset {
 public:
  Recordset();
  ~Recordset();
  Recordset(const Recordset&) = delete;
  Recordset& operator=(const Recordset&) = delete;

  /// Runs `source`, one SELECT, and stands on its first row. An optimistic keyset over one table can be
  /// changed by AddNew, Update and Delete.
  void Open(const QString& source, const std::shared_ptr<Connection>& connection,
            CursorType cursor = CursorType::ForwardOnly, LockType lock = LockType::ReadOnly);
  /// Reads a file that Save, or another program in the same format, has written. Its rows stay in memory and
  /// cannot be changed.
  void Open(const QString& path);
  /// Writes all rows to the file, a row begun by AddNew included; a file of that name is replaced when the
  /// new one is complete, and stays as it was when the writing fails.
  void Save(const QString& path, PersistFormat format);
  /// Gives up what was assigned and not written. Does nothing on a closed recordset.
  void Close();
  [[nodiscard]] ObjectState State() const;

  /// Whether the position is behind the last row (ADO's EOF; that name is a macro of C).
  [[nodiscard]] bool IsEOF() const;
  /// Writes what was assigned to the row, as Update does, and goes to the next one.
  void MoveNext();

  /// The column's field at the current row; names are compared without regard to letter case.
  [[nodiscard]] Field& Fields(const QString& name);
  /// The column's field by position, from 0.
  [[nodiscard]] Field& Fields(int index);
  [[nodiscard]] int FieldCount() const;
  /// How many rows there are, deleted ones included.
  [[nodiscard]] int RecordCount() const;

  /// Begins a new row; its fields start as Null. Nothing reaches the database before Update.
  void AddNew();
  /// Writes the fields that were assigned since AddNew or since the row was reached; the row stays the
  /// current one, with the key that the database gave it. A row that is gone is NoCurrentRecord.
  void Update();
  /// Deletes the current row, which has no values from then on, or gives up a row begun by AddNew and
  /// returns to the row before it.
  void Delete();

 private:
  /// Throws AdoError when the recordset is open.
  void requireClosed() const;
  /// Throws AdoError when the recordset is closed.
  [[nodiscard]] RowSource& rows() const;

  std::unique_ptr<RowSource> m_rows;
};

}  // namespace ado
