#pragma once

#include <map>
#include <vector>

#include "exchange/RosterLine.h"
#include "exchange/RosterPhotos.h"
#include "exchange/RosterRecords.h"

/// Judges the lines of a roster by each other and by the database.
class RosterJudge {
 public:
  /// Takes the database as it is now; `rows` must outlive it. Throws runtime::RuntimeError.
  RosterJudge(const std::vector<RosterRow>& rows, bool createDepartments);

  [[nodiscard]] RosterLine judge(const RosterRow& row, const RosterPhotos::Found& photo) const;

 private:
  /// The first rows that hold a value; two are enough to know of the other one.
  using Places = std::map<QString, std::vector<const RosterRow*>, ado::TextOrder>;

  static void note(Places& places, const QString& value, const RosterRow& row);
  static void refuseRepeated(RosterLine& line, const Places& places, const QString& value,
                             const QString& what);
  void judgeNumber(RosterLine& line) const;
  void judgeDepartment(RosterLine& line) const;
  void judgeDate(RosterLine& line, const RosterRecords::Employee* stored) const;
  void judgeBarcode(RosterLine& line, const RosterRecords::Employee* stored) const;

  bool m_createDepartments;
  RosterRecords m_records;
  Places m_numbers;
  Places m_barcodes;
  QDateTime m_today;
};
