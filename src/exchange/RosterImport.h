#pragma once

#include <set>
#include <vector>

#include <QStringList>

#include "exchange/RosterCheck.h"
#include "records/clsEmployee.h"
#include "runtime/Random.h"

struct RosterOptions {
  /// Departments that are not there are made.
  bool createDepartments = false;
  /// Lines that are wrong are left out; otherwise one of them keeps all from being written.
  bool skipBad = false;
};

/// Writes a checked roster into the database, all lines in one transaction: after an error or when it was
/// cancelled nothing was written. An employee who is there already is overwritten, but keeps a barcode; the
/// new ones get a barcode that nobody else has. So a roster can be imported again without a card becoming
/// invalid.
class RosterImport {
 public:
  /// `check` must outlive it; its pictures have been checked. Barcodes come from `random`.
  explicit RosterImport(RosterCheck& check, const runtime::Random& random = {})
      : m_check(check), m_barcodes(random) {}

  /// Judges the lines again and writes them; the check then holds how they were judged. Reports progress two
  /// steps a line: pictures are made ready before the transaction, which keeps other programs from writing,
  /// begins. False when it was cancelled. Throws runtime::RuntimeError, also when lines are wrong that may
  /// not be left out.
  [[nodiscard]] bool run(const RosterOptions& options);
  /// What was written, with the lines left out as wrong. Valid after run() gave true.
  [[nodiscard]] const RosterCounts& written() const { return m_written; }

 private:
  void judge(const RosterOptions& options);
  [[nodiscard]] bool prepare(const QString& folder);
  [[nodiscard]] bool write();
  void writeLine(const RosterLine& line, const QString& photo);
  [[nodiscard]] QString newBarcode();

  RosterCheck& m_check;
  /// Makes barcodes; is no employee.
  clsEmployee m_barcodes;
  /// Copy of each line's picture; empty for a line that was wrong when pictures were made ready.
  QStringList m_copies;
  std::set<QString> m_takenBarcodes;
  RosterCounts m_written;
};
