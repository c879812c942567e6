#include "ui/frmAbout.h"

#include <tuple>

#include <QCoreApplication>
#include <QGridLayout>
#include <QMouseEvent>
#include <QVersionNumber>

#include "graphics/ApplicationIcon.h"
#include "graphics/StoredColor.h"
#include "ui/Controls.h"
#include "ui/ProgramTitle.h"
#include "ui/SystemInfo.h"
#include "ui/mdlInternet.h"

namespace {

constexpr int red = 255;
constexpr int blue = 16711680;
constexpr int iconSize = 48;
constexpr int gap = 12;

QString versionLine() {
  const auto version = QVersionNumber::fromString(QCoreApplication::applicationVersion());
  return QStringLiteral("版本 %1.%2.%3")
      .arg(version.majorVersion())
      .arg(version.minorVersion())
      .arg(version.microVersion());
}

/// A text over the form: what the mouse does over it, it does over the form.
QLabel* makeText(const char* name) {
  auto* label = named(name, new QLabel);
  label->setTextFormat(Qt::PlainText);
  label->setAttribute(Qt::WA_TransparentForMouseEvents);
  return label;
}

QLabel* makeParagraph(const char* name, const QString& text) {
  QLabel* label = makeText(name);
  label->setText(text);
  label->setWordWrap(true);
  label->setMinimumWidth(label->fontMetrics().horizontalAdvance(u'宽') * 30);
  return label;
}

QFrame* makeRule() {
  auto* rule = new QFrame;
  rule->setFrameStyle(QFrame::HLine | QFrame::Sunken);
  rule->setAttribute(Qt::WA_TransparentForMouseEvents);
  return rule;
}

void enlarge(QLabel& label) {
  QFont font = label.font();
  font.setPointSizeF(font.pointSizeF() * 1.5);
  font.setBold(true);
  label.setFont(font);
}

}  // namespace

frmAbout::frmAbout(QWidget* parent)
    : QDialog(parent),
      lblTitle(makeText("lblTitle")),
      lblVersion(makeText("lblVersion")),
      lblHomepage(named("lblHomepage", new QLabel)),
      lblDescription(makeParagraph("lblDescription",
                                   QStringLiteral("管理单位的部门、员工和签到记录，打印带条码的员工签到卡，"
                                                  "汇总每月的签到与签退时间。"))),
      lblDisclaimer(makeParagraph("lblDisclaimer",
                                  QStringLiteral("本程序以 MIT 许可证发布，按现状提供，不作任何明示或默示的"
                                                 "担保。请定期备份数据库，并妥善保管员工的个人信息。"))) {
  BuildWindow();
  Form_Load();
}

void frmAbout::Form_Load() {
  lblVersion->setText(versionLine());
  lblTitle->setText(programTitle);
  lblHomepage->setText(homePage());
}

void frmAbout::BuildWindow() {
  setObjectName(QStringLiteral("frmAbout"));
  setWindowTitle(QStringLiteral("关于 签到系统"));
  setMouseTracking(true);
  enlarge(*lblTitle);
  lblHomepage->setTextFormat(Qt::PlainText);
  lblHomepage->setCursor(Qt::PointingHandCursor);
  lblHomepage->setMouseTracking(true);
  lblHomepage->installEventFilter(this);
  ColorHomepage(blue);

  auto* column = new QVBoxLayout(this);
  column->setSpacing(gap);
  column->addLayout(BuildHead());
  column->addWidget(lblDescription);
  column->addWidget(makeRule());
  column->addWidget(lblDisclaimer);
  column->addLayout(BuildButtons());
  column->setSizeConstraint(QLayout::SetFixedSize);
}

QLayout* frmAbout::BuildHead() {
  auto* icon = makeText("imgIcon");
  icon->setPixmap(graphics::applicationIcon().pixmap(iconSize, iconSize));
  auto* head = new QGridLayout;
  head->setHorizontalSpacing(gap);
  head->addWidget(icon, 0, 0, 3, 1, Qt::AlignTop);
  head->addWidget(lblTitle, 0, 1);
  head->addWidget(lblVersion, 1, 1);
  // As wide as its text: beside it the pointer is over the form.
  head->addWidget(lblHomepage, 2, 1, Qt::AlignLeft);
  head->setColumnStretch(1, 1);
  return head;
}

QLayout* frmAbout::BuildButtons() {
  auto* cmdOK = named("cmdOK", new QPushButton(QStringLiteral("确定")));
  auto* cmdSysInfo = named("cmdSysInfo", new QPushButton(QStringLiteral("系统信息(&S)...")));
  cmdOK->setDefault(true);
  connect(cmdOK, &QPushButton::clicked, this, &QDialog::close);
  connect(cmdSysInfo, &QPushButton::clicked, this, &frmAbout::cmdSysInfo_Click);
  return makeButtonRow({cmdOK, cmdSysInfo});
}

void frmAbout::ColorHomepage(int storedColor) {
  QPalette colours = lblHomepage->palette();
  colours.setColor(QPalette::WindowText, graphics::fromStoredColor(storedColor));
  lblHomepage->setPalette(colours);
}

void frmAbout::Form_MouseMove() {
  ColorHomepage(blue);
}

void frmAbout::lblHomepage_MouseMove() {
  ColorHomepage(red);
}

void frmAbout::lblHomepage_Click() {
  std::ignore = OpenDocument(homePage());
}

void frmAbout::cmdSysInfo_Click() {
  StartSysInfo();
}

void frmAbout::mouseMoveEvent(QMouseEvent* event) {
  QDialog::mouseMoveEvent(event);
  Form_MouseMove();
}

bool frmAbout::eventFilter(QObject* watched, QEvent* event) {
  if (watched != lblHomepage) return QDialog::eventFilter(watched, event);
  if (event->type() == QEvent::MouseMove) {
    lblHomepage_MouseMove();
    return true;  // else the form, which the label hands it to, would take it for a move of its own
  }
  const auto isClick = [&] {
    const auto* mouse = static_cast<QMouseEvent*>(event);
    return mouse->button() == Qt::LeftButton && lblHomepage->rect().contains(mouse->position().toPoint());
  };
  if (event->type() == QEvent::MouseButtonRelease && isClick()) lblHomepage_Click();
  return QDialog::eventFilter(watched, event);
}
