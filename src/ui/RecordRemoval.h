#pragma once

#include "records/clsDept.h"
#include "ui/MainStatus.h"
#include "ui/RecordList.h"

/// Removes the selected records of the list from the database, from the bottom row to the top one, asking
/// once a row. A row goes with its record.
class RecordRemoval {
 public:
  RecordRemoval(RecordList& list, MainStatus& status) : m_list(list), m_status(status) {}

  /// Departments without employees only; the others are kept and the user is told why.
  void RemoveSelectedDepts();
  void RemoveSelectedEmps();

 private:
  void removeDept(int row);
  void removeEmptyDept(clsDept& dept, int row);
  /// The messages do not tell why: the status bar does.
  void noteFailure(const QString& identifier, const QString& reason);

  RecordList& m_list;
  MainStatus& m_status;
};
