#pragma once

#include <memory>
#include <vector>

#include <QString>
#include <QVariant>

#include "ado/Field.h"

namespace ado {

/// Reads a persisted recordset row after row, holding no more than a piece of the file. Takes the files of
/// other writers: any encoding that XML names, declarations, other prefixes, columns in any order, pending
/// changes. Failures are AdoError, naming row and column where there is one.
class PersistedReader {
 public:
  /// Opens the file and reads its schema.
  explicit PersistedReader(const QString& path);
  ~PersistedReader();

  /// In the order of their numbers.
  [[nodiscard]] const std::vector<FieldDefinition>& columns() const;
  /// Reads the next row that is not deleted, changes applied: a value for each column, invalid for Null.
  /// False at the end of a file that is complete.
  [[nodiscard]] bool next(std::vector<QVariant>& values);

 private:
  class Parsing;
  std::unique_ptr<Parsing> m_parsing;
};

}  // namespace ado
