#pragma once

#include <cstdint>

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

struct lxw_format;
struct lxw_workbook;
struct lxw_worksheet;

/// How cells look.
struct CellStyle {
  double points = 10;
  bool bold = false;
  bool border = false;
  bool centered = false;
  bool shaded = false;
};

/// A sheet of a Workbook; rows and columns count from 0. All operations throw runtime::RuntimeError.
class Sheet {
 public:
  explicit Sheet(lxw_worksheet* sheet) : m_sheet(sheet) {}

  void writeText(int row, int column, const QString& text, lxw_format* format);
  void writeUtf8(int row, int column, const QByteArray& text, lxw_format* format);
  void writeNumber(int row, int column, int number, lxw_format* format);
  /// One text over the cells from the first place to the last, inclusive.
  void writeMerged(int row, int column, int lastRow, int lastColumn, const QString& text, lxw_format* format);
  /// Width in characters of the columns from `column` to `lastColumn`.
  void setWidth(int column, int lastColumn, double width);
  /// Keeps the rows above and the columns before that place in view and on every printed page.
  void freeze(int row, int column);
  /// Printed one page wide, upright on A4 or across on A3.
  void printUpright();
  void printAcross();
  /// No warning that the numbers in this column are texts.
  void allowTextNumbers(int column);

 private:
  void printOn(std::uint8_t paper);

  lxw_worksheet* m_sheet;
};

/// A workbook in the making. It lies in a directory of its own until save().
class Workbook {
 public:
  /// Throws runtime::RuntimeError.
  Workbook();
  ~Workbook();
  Workbook(const Workbook&) = delete;
  Workbook& operator=(const Workbook&) = delete;

  [[nodiscard]] Sheet addSheet(const QString& name);
  /// Owned here.
  [[nodiscard]] lxw_format* addFormat(const CellStyle& style);
  /// Finishes the workbook, which takes no more cells, and puts it in the place of `path`. Throws
  /// runtime::RuntimeError; what stood at `path` is then as it was.
  void save(const QString& path);

 private:
  [[nodiscard]] QString file() const { return m_directory.filePath(QStringLiteral("book.xlsx")); }

  QTemporaryDir m_directory;
  lxw_workbook* m_book;
};
