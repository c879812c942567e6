#include "printing/EmployeeMonthReport.h"

#include <array>

#include "foundation/GlobalDefine.h"
#include "runtime/Clock.h"
#include "runtime/DefaultText.h"
#include "runtime/RuntimeError.h"

namespace {

using report::Control;
using report::Section;

// Twips. Positions and sizes are printed, so they stay as they are; the columns are not all equally wide.
constexpr std::array columnLefts = {1134, 1701, 2268, 2835, 3402, 3969, 4535, 5102,
                                    5669, 6236, 6803, 7370, 7937, 8504, 9071, 9638};
constexpr int gridWidth = 10205;
constexpr int columnWidth = 567;
constexpr int narrowColumn = 5;
constexpr int narrowWidth = 566;
constexpr int nameWidth = 1134;
constexpr int bandHeight = 1134;
constexpr int upperHeight = 283;
constexpr int lowerHeight = 284;
constexpr int halfBand = 567;
constexpr int headerTop = 567;
constexpr int headerHeight = 1134;
constexpr int footerHeight = 283;
// The grid is wider than the room between the usual margins.
constexpr int sideMargin = 850;
constexpr int endMargin = 850;

constexpr double titlePoints = 14;
constexpr double namePoints = 10.5;
constexpr double smallPoints = 9;

constexpr int firstDayLabel = 30;

constexpr int columnOf(int day) {
  return (day - 1) / 2;
}

constexpr bool isUpper(int day) {
  return day % 2 == 1;
}

/// The day's column, from `top` on.
QRect dayBox(int day, int top, int height) {
  const int column = columnOf(day);
  return {columnLefts.at(static_cast<std::size_t>(column)), top,
          column == narrowColumn ? narrowWidth : columnWidth, height};
}

Control makeLabel(const QString& name, const QRect& box, const QString& caption, double points,
                  Qt::Alignment alignment) {
  Control label;
  label.Name = name;
  label.Left = box.left();
  label.Top = box.top();
  label.Width = box.width();
  label.Height = box.height();
  label.Caption = caption;
  label.Font.name = QStringLiteral("宋体");
  label.Font.size = points;
  label.Alignment = alignment;
  return label;
}

Control makeCell(const QString& name, const QRect& box, const QString& caption = {},
                 double points = smallPoints) {
  Control cell = makeLabel(name, box, caption, points, Qt::AlignCenter);
  cell.Border = true;
  return cell;
}

Control makeTitle(const QString& name, const QRect& box, const QString& caption, Qt::Alignment side) {
  return makeLabel(name, box, caption, titlePoints, side | Qt::AlignVCenter);
}

void designHeader(Section& header) {
  header.Name = QStringLiteral("PageHeader");
  header.Height = headerHeight;
  header.Controls = {
      makeTitle(QStringLiteral("lblSchoolName"), {1134, 0, 1701, 425}, QStringLiteral("校区名"),
                Qt::AlignRight),
      makeTitle(QStringLiteral("Label125"), {2835, 0, 992, 425}, QStringLiteral("校区"), Qt::AlignLeft),
      makeTitle(QStringLiteral("lblMonth"), {3827, 0, 567, 425}, QStringLiteral("月份"), Qt::AlignHCenter),
      makeTitle(QStringLiteral("Label1"), {4394, 0, 2976, 425}, QStringLiteral("月员工考勤报表"),
                Qt::AlignLeft),
      makeCell(QStringLiteral("Label2"), {0, headerTop, nameWidth, halfBand}, QStringLiteral("姓名"),
               namePoints),
  };
  for (int day = 1; day <= 31; ++day) {
    const QRect box = isUpper(day) ? dayBox(day, headerTop, upperHeight)
                                   : dayBox(day, headerTop + upperHeight, lowerHeight);
    header.Controls.push_back(
        makeCell(QStringLiteral("Label%1").arg(day - 1 + firstDayLabel), box, QString::number(day)));
  }
  header.Controls.push_back(makeCell(QStringLiteral("Label61"), dayBox(32, 850, lowerHeight)));
}

/// Place of a day's arrival among the band's controls; its departure stands behind it.
std::size_t enterCell(int day) {
  return 1 + 2 * static_cast<std::size_t>(day - 1);
}

void designDetail(Section& detail) {
  detail.Name = QStringLiteral("Detail");
  detail.Height = bandHeight;
  detail.Controls = {
      makeCell(QStringLiteral("lblName"), {0, 0, nameWidth, bandHeight}, QStringLiteral("姓名"), namePoints)};
  detail.Controls.front().Wrap = true;
  for (int day = 1; day <= 31; ++day) {
    const int top = isUpper(day) ? 0 : halfBand;
    detail.Controls.push_back(makeCell(QStringLiteral("lblEnter%1").arg(day), dayBox(day, top, upperHeight)));
    detail.Controls.push_back(
        makeCell(QStringLiteral("lblExit%1").arg(day), dayBox(day, top + upperHeight, lowerHeight)));
  }
  detail.Controls.push_back(makeCell(QStringLiteral("Label122"), dayBox(32, halfBand, upperHeight)));
  detail.Controls.push_back(
      makeCell(QStringLiteral("Label123"), dayBox(32, halfBand + upperHeight, lowerHeight)));
}

void designFooter(Section& footer) {
  footer.Name = QStringLiteral("PageFooter");
  footer.Height = footerHeight;
  footer.Controls = {makeLabel(QStringLiteral("Label124"), {7370, 0, 1134, footerHeight},
                               QStringLiteral("打印日期："), smallPoints, Qt::AlignRight | Qt::AlignVCenter),
                     makeLabel(QStringLiteral("lblPrintDate"), {8504, 0, 1701, footerHeight}, {}, smallPoints,
                               Qt::AlignLeft | Qt::AlignVCenter)};
}

}  // namespace

EmployeeMonthReport::EmployeeMonthReport() {
  Margins = {sideMargin, endMargin, PaperSize.width() - sideMargin - gridWidth, endMargin};
  designHeader(PageHeader);
  designDetail(Detail);
  designFooter(PageFooter);
}

void EmployeeMonthReport::setMonth(const MonthData& data) {
  schoolName = data.unit;
  presenceYear = static_cast<std::int16_t>(data.month.year());
  presenceMonth = static_cast<std::int16_t>(data.month.month());
  presenceList = data.presence;
}

int EmployeeMonthReport::expectedBands() const {
  return presenceList ? presenceList->Count() : 0;
}

void EmployeeMonthReport::ActiveReport_ReportStart() {
  if (expectedBands() > mostEmployees) {
    throw runtime::RuntimeError(
        runtime::ErrorNumber::Overflow,
        QStringLiteral(
            "有考勤记录的员工有 %1 名，月报表最多能列出 %2 名。请改为导出 Excel 工作簿或 CSV 文件。")
            .arg(expectedBands())
            .arg(mostEmployees));
  }
  report::LocalizeToolbar(Toolbar);
  PageHeader.control(QStringLiteral("lblSchoolName")).Caption = schoolName;
  PageHeader.control(QStringLiteral("lblMonth")).Caption = QString::number(presenceMonth);
  PageFooter.control(QStringLiteral("lblPrintDate")).Caption = runtime::dateText(runtime::now().date());
  const auto month = AttendanceMonth::make(presenceYear, presenceMonth);
  Title = month ? month->title(schoolName) : schoolName;
  m_days = month ? month->days() : std::vector<QDate>();
}

void EmployeeMonthReport::ActiveReport_FetchData(bool& endOfData) {
  ++m_row;
  endOfData = m_row > expectedBands();
  if (endOfData) return;
  const std::shared_ptr<clsSingleEmployeeMonPresence> employee = presenceList->Item(m_row);
  // By place: looking 62 controls up by name would take longer than all else.
  Detail.Controls.front().Caption = employee->ENAME();
  for (const QDate& day : m_days) {
    const std::size_t cell = enterCell(day.day());
    Detail.Controls[cell].Caption = FormatShortTime(employee->GetEnterTime(day));
    Detail.Controls[cell + 1].Caption = FormatShortTime(employee->GetExitTime(day));
  }
}
