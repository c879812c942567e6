#include "printing/CardDesign.h"

#include <array>

#include "printing/DefaultLogo.h"
#include "printing/LogoFile.h"
#include "printing/clsLogo.h"
#include "printing/clsTextDspStyle.h"
#include "runtime/ProgramDirectory.h"
#include "runtime/RuntimeError.h"

namespace card {

namespace {

using report::Control;
using report::ControlKind;

// Twips. Positions are printed, so they stay as they are.
constexpr int bandHeight = 3495;
constexpr QRect frameBox{QPoint(), size};
constexpr Qt::Alignment leftMiddle = Qt::AlignLeft | Qt::AlignVCenter;

constexpr const char16_t* song = u"宋体";
constexpr const char16_t* arial = u"Arial";

struct Row {
  ControlKind kind;
  const char* name;
  QRect box;
  const char16_t* caption;
  const char16_t* font;
  double points;
  Qt::Alignment alignment;
};

constexpr std::array rows{
    Row{ControlKind::Shape, "Shape1", frameBox, u"", song, 10, leftMiddle},
    Row{ControlKind::Image, "logPic", {142, 142, 567, 567}, u"", song, 10, leftMiddle},
    Row{ControlKind::Label, "lblUnit", {709, 283, 3826, 567}, u"", u"隶书", 26.5, Qt::AlignCenter},
    Row{ControlKind::Image, "ImgHead", {142, 992, 2267, 1701}, u"", song, 10, leftMiddle},
    Row{ControlKind::Label, "Label3", {2693, 1134, 567, 283}, u"姓名", song, 10.5, leftMiddle},
    Row{ControlKind::Label, "lblName", {3260, 1134, 992, 283}, u"", u"仿宋_GB2312", 12, leftMiddle},
    Row{ControlKind::Label, "Label2", {2693, 1771, 567, 283}, u"岗位", song, 10.5, leftMiddle},
    Row{ControlKind::Label, "lblDept", {3260, 1771, 992, 283}, u"", song, 10.5, leftMiddle},
    Row{ControlKind::Label, "Label1", {2693, 2408, 567, 284}, u"编号", song, 10.5, leftMiddle},
    Row{ControlKind::Label, "lblNumber", {3260, 2408, 992, 284}, u"", u"楷体_GB2312", 11.5, leftMiddle},
    Row{ControlKind::Label, "lblMemo", {142, 2835, 1500, 283}, u"", arial, 8.5, leftMiddle},
    Row{ControlKind::Barcode, "Barcode", {1701, 2835, 2834, 283}, u"", arial, 6.5, Qt::AlignCenter},
};

Control makeControl(const Row& row) {
  Control control;
  control.Kind = row.kind;
  control.Name = QLatin1String(row.name);
  control.Left = row.box.left();
  control.Top = row.box.top();
  control.Width = row.box.width();
  control.Height = row.box.height();
  control.Caption = QString::fromUtf16(row.caption);
  control.Font.name = QString::fromUtf16(row.font);
  control.Font.size = row.points;
  control.Alignment = row.alignment;
  return control;
}

}  // namespace

const Line& unitLine() {
  static const Line line{QStringLiteral("lblUnit"), QStringLiteral("UNIT")};
  return line;
}

const Line& memoLine() {
  static const Line line{QStringLiteral("lblMemo"), QStringLiteral("MEMO")};
  return line;
}

report::Section design() {
  report::Section section;
  section.Name = QStringLiteral("Detail");
  section.Height = bandHeight;
  section.EntryControl = QStringLiteral("lblName");
  for (const Row& row : rows) section.Controls.push_back(makeControl(row));
  section.control(QStringLiteral("logPic")).Picture = defaultLogo();
  return section;
}

void applyStyle(report::Section& section, const Line& line) {
  clsTextDspStyle style;
  style.InitConfigGroupName(line.group);
  Control& label = section.control(line.control);
  label.Caption = style.GetName();
  const QString font = style.GetFont();
  if (!font.isEmpty()) label.Font.name = font;
  label.Font.size = style.GetSize().toDouble();
  label.ForeColor = style.GetColor();
  label.Font.bold = style.GetBold();
  label.Font.italic = style.GetItalic();
}

Logo storedLogo() {
  Logo logo{defaultLogo(), runtime::nativePath(clsLogo().GetPath()), {}};
  if (logo.path.isEmpty() || !runtime::isNormalFile(logo.path)) return {logo.picture, {}, {}};
  try {
    logo.picture = logo::read(logo.path);
  } catch (const runtime::RuntimeError& error) {
    logo.failure = error.description();
  }
  return logo;
}

}  // namespace card
