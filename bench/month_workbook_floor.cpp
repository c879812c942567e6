// Writes the cells of a full month's workbook with the library's own calls: for each of EMPLOYEES people
// number, name and a pair of texts for each of 31 days, and a row of the summary; no database, no headings:
// EMPLOYEES FILE.

#include <cstdio>
#include <cstdlib>
#include <xlsxwriter.h>

namespace {

constexpr lxw_col_t dayColumns = 62;

void writeEmployee(lxw_worksheet* sheet, lxw_row_t row, lxw_format* format) {
  char number[16];
  std::snprintf(number, sizeof number, "A%04u", row);
  worksheet_write_string(sheet, row, 0, number, format);
  worksheet_write_string(sheet, row, 1, "欧阳静", format);
}

void writeTime(lxw_worksheet* sheet, lxw_row_t row, lxw_col_t column, unsigned hour, unsigned minute,
               lxw_format* format) {
  char text[16];
  std::snprintf(text, sizeof text, "%02u:%02u", hour + row % 2, minute % 60);
  worksheet_write_string(sheet, row, column, text, format);
}

void writeDays(lxw_worksheet* sheet, lxw_row_t row, lxw_format* format) {
  writeEmployee(sheet, row, format);
  for (lxw_col_t i = 0; i < dayColumns; ++i) {
    const unsigned hour = i % 2 == 0 ? 7 : 17;
    writeTime(sheet, row, static_cast<lxw_col_t>(i + 2), hour, row * 7 + i / 2 * 13U, format);
  }
}

void writeSummary(lxw_worksheet* sheet, lxw_row_t row, lxw_format* format) {
  writeEmployee(sheet, row, format);
  worksheet_write_number(sheet, row, 2, 31, format);
  worksheet_write_number(sheet, row, 3, 0, format);
  writeTime(sheet, row, 4, 7, 10, format);
  writeTime(sheet, row, 5, 17, 59, format);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  lxw_workbook* book = workbook_new(argv[2]);
  lxw_worksheet* days = workbook_add_worksheet(book, "1");
  lxw_worksheet* summary = workbook_add_worksheet(book, "2");
  lxw_format* format = workbook_add_format(book);
  format_set_border(format, LXW_BORDER_THIN);
  const auto employees = static_cast<lxw_row_t>(std::atoi(argv[1]));
  for (lxw_row_t row = 0; row < employees; ++row) {
    writeDays(days, row, format);
    writeSummary(summary, row, format);
  }
  return workbook_close(book) == LXW_NO_ERROR ? 0 : 1;
}
