#pragma once

#include <vector>

#include <QByteArray>
#include <QString>

/// One line of a roster as it stands in the file, without the blanks around its values.
struct RosterRow {
  /// The lines of the file, from 1, on which it begins and ends.
  int line = 0;
  int lastLine = 0;
  QString number{};
  QString name{};
  QString department{};
  QString date{};
  QString barcode{};
  /// Why the line could not be taken apart; empty when it could.
  QString fault{};

  /// `第 3 行`, as every message names the line.
  [[nodiscard]] QString place() const;
};

/// Reads a CSV file with the columns 编号, 姓名, 部门, 录入日期 and perhaps 条码, in any order; the headings
/// of the employee list (员工号, 所属部门, 签到条码) do as well. UTF-8 with or without a byte order mark, or
/// GBK. Lines without any value are left out. Throws runtime::RuntimeError for what makes the whole file
/// unreadable: no such file, another kind of file, over 16 MB or 100,000 lines, a heading that does not fit,
/// a quote that is never closed.
[[nodiscard]] std::vector<RosterRow> readRoster(const QString& path);

/// A roster without lines: the headings, in UTF-8 with the byte order mark by which spreadsheet programs know
/// it, CR LF.
[[nodiscard]] QByteArray rosterTemplate();
