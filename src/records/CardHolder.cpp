#include "records/CardHolder.h"

CardHolder findCardHolder(const QString& barcode) {
  // No stored barcode holds these, and no statement takes them.
  if (barcode.contains(u'\'') || barcode.contains(QChar(u'\0'))) return {};
  auto employee = std::make_shared<clsEmployee>();
  employee->setEBARCODE(barcode);
  const int result = employee->IsExist();
  if (result == clsEmployee::NotFound) return {};
  const QString& failure = employee->lastFailure();
  if (result == clsEmployee::Found) return {.employee = employee};
  // The number is the last of the texts that come out of the row: only the photo comes after it.
  if (!employee->ENUMBER().isEmpty()) return {.employee = employee, .photoFailure = failure};
  return {.failure = {failure, employee->lastFailureKind()}};
}
