#include "exchange/Workbook.h"

#include <utility>
#include <xlsxwriter.h>

#include <QFile>

#include "runtime/ReplacingFile.h"
#include "runtime/RuntimeError.h"
#include "runtime/SystemWords.h"

namespace {

// LibreOffice and Excel replace it by their own when it is missing.
constexpr const char* fontName = "宋体";
constexpr lxw_color_t shade = 0xEDEDED;
constexpr std::uint8_t a3Paper = 8;
constexpr std::uint8_t a4Paper = 9;

[[noreturn]] void fail(const QString& reason) {
  throw runtime::RuntimeError(runtime::ErrorNumber::FileIo, QStringLiteral("工作簿无法生成：%1").arg(reason));
}

void require(lxw_error error) {
  if (error != LXW_NO_ERROR) fail(QString::fromUtf8(lxw_strerror(error)));
}

lxw_row_t row(int number) {
  return static_cast<lxw_row_t>(number);
}

lxw_col_t column(int number) {
  return static_cast<lxw_col_t>(number);
}

}  // namespace

void Sheet::writeText(int r, int c, const QString& text, lxw_format* format) {
  writeUtf8(r, c, text.toUtf8(), format);
}

void Sheet::writeUtf8(int r, int c, const QByteArray& text, lxw_format* format) {
  require(worksheet_write_string(m_sheet, row(r), column(c), text.constData(), format));
}

void Sheet::writeNumber(int r, int c, int number, lxw_format* format) {
  require(worksheet_write_number(m_sheet, row(r), column(c), number, format));
}

void Sheet::writeMerged(int r, int c, int lastRow, int lastColumn, const QString& text, lxw_format* format) {
  require(worksheet_merge_range(m_sheet, row(r), column(c), row(lastRow), column(lastColumn),
                                text.toUtf8().constData(), format));
}

void Sheet::setWidth(int c, int lastColumn, double width) {
  require(worksheet_set_column(m_sheet, column(c), column(lastColumn), width, nullptr));
}

void Sheet::freeze(int r, int c) {
  worksheet_freeze_panes(m_sheet, row(r), column(c));
  require(worksheet_repeat_rows(m_sheet, 0, row(r - 1)));
  require(worksheet_repeat_columns(m_sheet, 0, column(c - 1)));
}

void Sheet::printUpright() {
  printOn(a4Paper);
}

void Sheet::printAcross() {
  worksheet_set_landscape(m_sheet);
  printOn(a3Paper);
}

void Sheet::printOn(std::uint8_t paper) {
  worksheet_set_paper(m_sheet, paper);
  worksheet_fit_to_pages(m_sheet, 1, 0);
}

void Sheet::allowTextNumbers(int c) {
  const QString letter(QChar(u'A' + c));
  require(worksheet_ignore_errors(m_sheet, LXW_IGNORE_NUMBER_STORED_AS_TEXT,
                                  QStringLiteral("%1:%1").arg(letter).toUtf8().constData()));
}

Workbook::Workbook() : m_book(nullptr) {
  if (!m_directory.isValid()) fail(runtime::systemWords(m_directory.errorString()));
  m_book = workbook_new(QFile::encodeName(file()).constData());
  if (m_book == nullptr) fail(QStringLiteral("内存不足"));
}

Workbook::~Workbook() {
  lxw_workbook_free(m_book);
}

Sheet Workbook::addSheet(const QString& name) {
  lxw_worksheet* sheet = workbook_add_worksheet(m_book, name.toUtf8().constData());
  if (sheet == nullptr) fail(QStringLiteral("不能加入工作表“%1”").arg(name));
  return Sheet(sheet);
}

lxw_format* Workbook::addFormat(const CellStyle& style) {
  lxw_format* format = workbook_add_format(m_book);
  if (format == nullptr) fail(QStringLiteral("内存不足"));
  format_set_font_name(format, fontName);
  format_set_font_size(format, style.points);
  format_set_align(format, LXW_ALIGN_VERTICAL_CENTER);
  if (style.bold) format_set_bold(format);
  if (style.border) format_set_border(format, LXW_BORDER_THIN);
  if (style.centered) format_set_align(format, LXW_ALIGN_CENTER);
  if (style.shaded) format_set_bg_color(format, shade);
  return format;
}

void Workbook::save(const QString& path) {
  runtime::ReplacingFile target(path);
  // Closing frees the workbook, whether it succeeds or not.
  require(workbook_close(std::exchange(m_book, nullptr)));
  QFile made(file());
  if (!made.open(QIODevice::ReadOnly)) fail(runtime::systemWords(made.errorString()));
  target.write(made.readAll());
  target.commit();
}
