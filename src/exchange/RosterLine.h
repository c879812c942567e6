#pragma once

#include <cstdint>

#include <QDateTime>
#include <QString>
#include <QStringList>

#include "exchange/RosterCsv.h"

/// One line of a roster after it was checked.
struct RosterLine {
  /// As it stands in the file.
  RosterRow row{};
  /// Number of the department; 0 when it is still to be made.
  std::int16_t department = 0;
  /// The date to be stored.
  QDateTime entered{};
  /// The barcode to be stored; empty when one is to be generated.
  QString barcode{};
  /// Path of the user's picture. It is only ever read.
  QString photo{};
  /// Whether the employee is in the database already.
  bool isUpdate = false;
  /// The stored name, when it is another one.
  QString nameBefore{};
  /// What is wrong with the line, one sentence each; empty when nothing is.
  QStringList faults{};

  [[nodiscard]] bool isRight() const { return faults.isEmpty(); }
  [[nodiscard]] bool makesDepartment() const { return isRight() && department == 0; }
  /// What an import does with it: `新增`, `更新` with what is worth knowing, or `错误：` with the faults.
  [[nodiscard]] QString outcome() const;
  /// `第 3 行：` and the faults.
  [[nodiscard]] QString faultText() const;
};
