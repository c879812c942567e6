#include "printing/SingleEmployeeInfoReport.h"

#include <array>

#include "printing/DefaultLogo.h"
#include "printing/clsLogo.h"
#include "printing/clsTextDspStyle.h"
#include "runtime/ProgramDirectory.h"
#include "runtime/RuntimeError.h"

namespace {

using report::Control;
using report::ControlKind;

constexpr int bandHeight = 3495;
constexpr Qt::Alignment leftMiddle = Qt::AlignLeft | Qt::AlignVCenter;

/// The card by design. Positions are printed, so they stay as they are.
struct CardControl {
  ControlKind kind;
  QString name;
  QRect box;
  QString caption;
  QString font;
  double points;
  Qt::Alignment alignment;
};

const std::array<CardControl, 12>& cardDesign() {
  static const QString song = QStringLiteral("宋体");
  static const QString arial = QStringLiteral("Arial");
  static const std::array<CardControl, 12> design{{
      {ControlKind::Shape,
       QStringLiteral("Shape1"),
       {QPoint(), SingleEmployeeInfoReport::cardSize},
       {},
       song,
       10,
       leftMiddle},
      {ControlKind::Image, QStringLiteral("logPic"), {142, 142, 567, 567}, {}, song, 10, leftMiddle},
      {ControlKind::Label,
       QStringLiteral("lblUnit"),
       {709, 283, 3826, 567},
       {},
       QStringLiteral("隶书"),
       26.5,
       Qt::AlignCenter},
      {ControlKind::Image, QStringLiteral("ImgHead"), {142, 992, 2267, 1701}, {}, song, 10, leftMiddle},
      {ControlKind::Label,
       QStringLiteral("Label3"),
       {2693, 1134, 567, 283},
       QStringLiteral("姓名"),
       song,
       10.5,
       leftMiddle},
      {ControlKind::Label,
       QStringLiteral("lblName"),
       {3260, 1134, 992, 283},
       {},
       QStringLiteral("仿宋_GB2312"),
       12,
       leftMiddle},
      {ControlKind::Label,
       QStringLiteral("Label2"),
       {2693, 1771, 567, 283},
       QStringLiteral("岗位"),
       song,
       10.5,
       leftMiddle},
      {ControlKind::Label, QStringLiteral("lblDept"), {3260, 1771, 992, 283}, {}, song, 10.5, leftMiddle},
      {ControlKind::Label,
       QStringLiteral("Label1"),
       {2693, 2408, 567, 284},
       QStringLiteral("编号"),
       song,
       10.5,
       leftMiddle},
      {ControlKind::Label,
       QStringLiteral("lblNumber"),
       {3260, 2408, 992, 284},
       {},
       QStringLiteral("楷体_GB2312"),
       11.5,
       leftMiddle},
      {ControlKind::Label, QStringLiteral("lblMemo"), {142, 2835, 1500, 283}, {}, arial, 8.5, leftMiddle},
      {ControlKind::Barcode,
       QStringLiteral("Barcode"),
       {1701, 2835, 2834, 283},
       {},
       arial,
       6.5,
       Qt::AlignCenter},
  }};
  return design;
}

Control makeControl(const CardControl& design) {
  Control control;
  control.Kind = design.kind;
  control.Name = design.name;
  control.Left = design.box.left();
  control.Top = design.box.top();
  control.Width = design.box.width();
  control.Height = design.box.height();
  control.Caption = design.caption;
  control.Font.name = design.font;
  control.Font.size = design.points;
  control.Alignment = design.alignment;
  return control;
}

void applyStyle(Control& label, const clsTextDspStyle& style) {
  label.Caption = style.GetName();
  const QString font = style.GetFont();
  if (!font.isEmpty()) label.Font.name = font;
  label.Font.size = style.GetSize().toDouble();
  label.ForeColor = style.GetColor();
  label.Font.bold = style.GetBold();
  label.Font.italic = style.GetItalic();
}

}  // namespace

SingleEmployeeInfoReport::SingleEmployeeInfoReport() {
  Title = QStringLiteral("签到卡");
  PageHeader.Name = QStringLiteral("PageHeader");
  PageFooter.Name = QStringLiteral("PageFooter");
  Detail.Name = QStringLiteral("Detail");
  Detail.Height = bandHeight;
  Detail.EntryControl = QStringLiteral("lblName");
  for (const CardControl& design : cardDesign()) Detail.Controls.push_back(makeControl(design));
  Detail.control(QStringLiteral("logPic")).Picture = defaultLogo();
}

void SingleEmployeeInfoReport::SetEmployeeSet(std::shared_ptr<clsEmployeeSet> employees) {
  m_employees = std::move(employees);
  m_fetched = 0;
}

int SingleEmployeeInfoReport::expectedBands() const {
  return m_employees ? m_employees->Count() : 0;
}

void SingleEmployeeInfoReport::ActiveReport_ReportStart() {
  m_photoFailures.clear();
  report::LocalizeToolbar(Toolbar);
  ApplyCardStyles();
}

void SingleEmployeeInfoReport::ApplyCardStyles() {
  clsTextDspStyle style;
  style.InitConfigGroupName(QStringLiteral("UNIT"));
  applyStyle(Detail.control(QStringLiteral("lblUnit")), style);
  style.InitConfigGroupName(QStringLiteral("MEMO"));
  applyStyle(Detail.control(QStringLiteral("lblMemo")), style);
  LoadLogo();
}

void SingleEmployeeInfoReport::LoadLogo() {
  const QString path = runtime::nativePath(clsLogo().GetPath());
  if (path.isEmpty() || !runtime::isNormalFile(path)) return;
  try {
    Detail.control(QStringLiteral("logPic")).Picture = graphics::LoadPicture(path);
  } catch (const runtime::RuntimeError& error) {
    m_photoFailures.append(QStringLiteral("签到卡的标志无法读取：%1").arg(error.description()));
  }
}

void SingleEmployeeInfoReport::ActiveReport_FetchData(bool& endOfData) {
  ++m_fetched;
  endOfData = m_fetched > expectedBands();
  if (endOfData) return;
  const std::shared_ptr<clsEmployee> employee = m_employees->Item(m_fetched);
  Detail.control(QStringLiteral("lblName")).Caption = employee->ENAME();
  Detail.control(QStringLiteral("Barcode")).Caption = employee->EBARCODE();
  Detail.control(QStringLiteral("lblNumber")).Caption = employee->ENUMBER();
  Detail.control(QStringLiteral("lblDept")).Caption = employee->DNAME();
  Detail.control(QStringLiteral("ImgHead")).Picture = LoadPhoto(*employee);
}

graphics::PicturePointer SingleEmployeeInfoReport::LoadPhoto(const clsEmployee& employee) {
  try {
    return graphics::LoadPicture(employee.HeadImg());
  } catch (const runtime::RuntimeError& error) {
    m_photoFailures.append(
        QStringLiteral("编号为[%1]的员工的照片无法读取：%2").arg(employee.ENUMBER(), error.description()));
    return nullptr;
  }
}
