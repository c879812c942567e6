#include "attendance/clsEmployeePresenceSet.h"

#include <cstdint>

#include <QHash>

#include "runtime/Conversions.h"

bool clsEmployeePresenceSet::LoadByDate(const QDate& startDate, const QDate& endDate) {
  clsPresenceSet records;
  const bool loaded = records.LoadSet(startDate, endDate);
  m_lastFailure = records.lastFailure();
  if (!loaded) return false;
  [[maybe_unused]] const std::int16_t count = runtime::toInt16(records.Count());
  AddRecords(records);
  return true;
}

void clsEmployeePresenceSet::AddRecords(const clsPresenceSet& records) {
  // Letter case is folded once for each spelling of a number, not for each of tens of thousands of records.
  QHash<QString, std::shared_ptr<clsSingleEmployeeMonPresence>> known;
  for (const std::shared_ptr<clsPresence>& record : records) {
    std::shared_ptr<clsSingleEmployeeMonPresence>& employee = known[record->ENUMBER()];
    if (!employee) employee = m_members.find(record->ENUMBER());
    if (!employee) employee = Add(record->ENUMBER(), record->ENAME(), record->ENUMBER());
    employee->tryAddPresence(record->enterTime(), record->exitTime());
  }
}

std::shared_ptr<clsSingleEmployeeMonPresence> clsEmployeePresenceSet::Add(const QString& ENUMBER,
                                                                          const QString& ENAME,
                                                                          const QString& sKey) {
  auto employee = std::make_shared<clsSingleEmployeeMonPresence>();
  employee->setENUMBER(ENUMBER);
  employee->setENAME(ENAME);
  m_members.Add(employee, sKey);
  return employee;
}
