#pragma once

#include "printing/CardSheet.h"
#include "printing/SingleEmployeeInfoReport.h"

/// The sign-in cards, eight on a sheet of A4: the same cards in the same design, laid out another way.
class CardSheetReport : public SingleEmployeeInfoReport {
 public:
  explicit CardSheetReport(const CardSheet& sheet);
};
