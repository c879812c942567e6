#include "records/clsDeptSet.h"

#include <tuple>

#include "ado/Recordset.h"
#include "foundation/Attempt.h"
#include "foundation/clsDbConn.h"
#include "runtime/Conversions.h"

clsDeptSet::clsDeptSet() {
  QString failure;
  std::ignore = attempt(failure, false, [this] {
    ado::Recordset rows;
    rows.Open(QStringLiteral("SELECT * from Dept "), clsDbConn().GetDbConn());
    for (; !rows.IsEOF(); rows.MoveNext()) addRow(rows);
    rows.Close();
    return true;
  });
  noteFailure(failure);
}

/// A step that fails leaves what it would have set as it is, and the steps behind it run.
void clsDeptSet::addRow(ado::Recordset& row) {
  const auto department = std::make_shared<clsDept>();
  const auto step = [this](const auto& action) {
    QString failure;
    std::ignore = attempt(failure, false, [&action] {
      action();
      return true;
    });
    noteFailure(failure);
  };
  step([&] { department->setID(runtime::toInt16(row.Fields(QStringLiteral("ID")).Value())); });
  noteFailure(department->lastFailure());
  step([&] { department->setDNAME(runtime::toText(row.Fields(QStringLiteral("DNAME")).Value())); });
  noteFailure(department->lastFailure());
  // A department without a password is no failure worth a word: none that the program made has one.
  step([&] {
    department->setPASSWORD(runtime::toTextOrEmpty(row.Fields(QStringLiteral("PASSWORD")).Value()));
  });
  step([&] { m_members.Add(department, QString::number(department->ID())); });
}

void clsDeptSet::noteFailure(const QString& failure) {
  if (m_firstFailure.isEmpty()) m_firstFailure = failure;
}

std::shared_ptr<clsDept> clsDeptSet::Add(std::int16_t id, const QString& name, const QString& password,
                                         const QString& key) {
  auto department = std::make_shared<clsDept>();
  department->setID(id);
  department->setDNAME(name);
  department->setPASSWORD(password);
  m_members.Add(department, key);
  return department;
}
