#pragma once

#include <memory>
#include <vector>

#include <QString>
#include <QVariant>

#include "persisted/FieldDefinition.h"

namespace persisted {

/// Reads a persisted recordset row after row, holding no more than a piece of the file. Takes the files of
/// other writers: any encoding that XML names, declarations, other prefixes, columns in any order, pending
/// changes. Failures are RuntimeError, naming the file, and record and column where there is one.
class Reader {
 public:
  /// Opens the file and reads its schema.
  explicit Reader(const QString& path);
  ~Reader();

  /// In the order of their numbers.
  [[nodiscard]] const std::vector<FieldDefinition>& columns() const;
  /// Reads the next row that is not deleted, changes applied: a value for each column, invalid for Null.
  /// False at the end of a file that is complete.
  [[nodiscard]] bool next(std::vector<QVariant>& values);

 private:
  class Parsing;
  std::unique_ptr<Parsing> m_parsing;
};

}  // namespace persisted
