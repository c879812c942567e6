// Writes a row an employee with a pair of texts for each of 31 days with the workbook library's own calls:
// EMPLOYEES FILE.

#include <cstdio>
#include <cstdlib>
#include <xlsxwriter.h>

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  lxw_workbook* book = workbook_new(argv[2]);
  lxw_worksheet* sheet = workbook_add_worksheet(book, "1");
  lxw_format* format = workbook_add_format(book);
  format_set_border(format, LXW_BORDER_THIN);
  const int employees = std::atoi(argv[1]);
  for (int employee = 0; employee < employees; ++employee) {
    for (int column = 0; column < 62; ++column) {
      char text[16];
      std::snprintf(text, sizeof text, "%02d:%02d", (column % 2 == 0 ? 7 : 17) + employee % 2,
                    (employee * 7 + column / 2 * 13) % 60);
      worksheet_write_string(sheet, static_cast<lxw_row_t>(employee), static_cast<lxw_col_t>(column), text,
                             format);
    }
  }
  return workbook_close(book) == LXW_NO_ERROR ? 0 : 1;
}
