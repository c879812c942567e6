#pragma once

#include <vector>

#include "exchange/RosterLine.h"
#include "exchange/RosterPhotos.h"

/// How many lines of which kind there are.
struct RosterCounts {
  int added = 0;
  int updated = 0;
  int wrong = 0;
  /// Departments to be made.
  int departments = 0;

  [[nodiscard]] int right() const { return added + updated; }
  /// `新增 3 名，更新 1 名`, with `，新建部门 1 个` when there are any.
  [[nodiscard]] QString text() const;
};

/// A roster file with its folder of pictures, and what is wrong with each line.
///
/// A line is wrong when its number or name is empty, too long or holds characters that nobody sees, when the
/// number is no plain file name, holds a single quote or is in the file or the database twice; when its
/// department is unknown (unless it may be made); when its date does not exist; when its barcode is not 15
/// digits, another employee's, in the file twice, or another one than the card of this employee bears; when
/// there is no picture by its number, more than one, or one that is damaged.
///
/// A line without a date means the stored date, for somebody new today. A line without a barcode means the
/// stored one.
class RosterCheck {
 public:
  /// Reads the file and lists the folder. Throws runtime::RuntimeError.
  RosterCheck(const QString& file, const QString& photoFolder);

  /// Finds and looks into every picture, which takes a moment; reports progress a line. False when it was
  /// cancelled; it can be called again then.
  [[nodiscard]] bool checkPhotos();
  /// Judges all lines by the database as it is now. Throws runtime::RuntimeError.
  void judge(bool createDepartments);

  /// The lines as last judged, in the order of the file.
  [[nodiscard]] const std::vector<RosterLine>& lines() const { return m_lines; }
  [[nodiscard]] RosterCounts counts() const;

 private:
  RosterPhotos m_photos;
  std::vector<RosterRow> m_rows;
  /// Of each row: its picture and what is wrong with it.
  std::vector<RosterPhotos::Found> m_found;
  std::vector<RosterLine> m_lines;
};
