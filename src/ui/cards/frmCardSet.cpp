#include "ui/cards/frmCardSet.h"

#include <cmath>
#include <tuple>

#include <QFileInfo>
#include <QGridLayout>
#include <QGroupBox>

#include "dialogs/Dialogs.h"
#include "printing/LogoFile.h"
#include "printing/clsLogo.h"
#include "runtime/RuntimeError.h"

namespace {

const QString logoFilter = QStringLiteral(
    "位图(*.bmp;*.dib)|*.bmp;*.dib|GIF图像(*.gif)|*.gif|JPEG图像(*.jpg)|*.jpg|元文件(*.wmf;*.emf)|*.wmf;*."
    "emf|"
    "Icons(*.ico;*.cur)|*.ico;*.cur|所有图像文件|*.bmp;*.dib;*.gif;*.jpg;*.wmf;*.emf;*.ico;*.cur");

const QColor failureColor(0xb0, 0x20, 0x20);

QLabel* note(const char* name, const QString& text = {}) {
  auto* label = new QLabel(text);
  label->setObjectName(QLatin1String(name));
  label->setWordWrap(true);
  return label;
}

void color(QLabel& label, const QColor& ink) {
  QPalette colours = label.palette();
  colours.setColor(QPalette::WindowText, ink);
  label.setPalette(colours);
}

/// The size as a number without a fraction, halves rounded to the even one; empty when it is none or not
/// above 0.
QString wholePoints(double size) {
  const double whole = std::nearbyint(size);
  return whole > 0 && std::isfinite(whole) ? QString::number(whole, 'f', 0) : QString();
}

void warn(const QString& text) {
  dialogs::MsgBox(text, dialogs::Exclamation, QStringLiteral("警告"));
}

}  // namespace

frmCardSet::frmCardSet(QWidget* parent)
    : QDialog(parent),
      m_card(new CardFace),
      lblLogoWarning(note("lblLogoWarning")),
      lblFailure(note("lblFailure")) {
  BuildWindow();
  Form_Load();
}

frmCardSet::Line frmCardSet::unitLine() {
  return {card::unitLine(), QStringLiteral("请输入签到卡显示的单位名称："), m_card->unit()};
}

frmCardSet::Line frmCardSet::memoLine() {
  return {card::memoLine(), QStringLiteral("请输入签到卡备注内容："), m_card->memo()};
}

void frmCardSet::Form_Load() {
  ShowStored(unitLine());
  ShowStored(memoLine());
  ShowLogo();
}

void frmCardSet::ShowStored(const Line& line) {
  report::Section section = card::design();
  card::applyStyle(section, line.design);
  line.preview.setLabel(section.control(line.design.control));
}

void frmCardSet::ShowLogo() {
  const card::Logo stored = card::storedLogo();
  const bool goes = !stored.path.isEmpty() && logo::isDeletedLater(QFileInfo(stored.path).fileName());
  lblLogoWarning->setText(
      goes ? QStringLiteral("程序以后会删除与此标志同名的照片文件，请把图片改名后重新选择。") : QString());
  m_card->setLogo(*stored.picture);
  if (!stored.failure.isEmpty()) lblFailure->setText(stored.failure);
}

void frmCardSet::BuildWindow() {
  setObjectName(QStringLiteral("frmCardSet"));
  setWindowTitle(QStringLiteral("签到卡设置"));
  color(*lblLogoWarning, failureColor);
  color(*lblFailure, failureColor);
  auto* groups = new QVBoxLayout;
  groups->addWidget(BuildUnit());
  groups->addWidget(BuildMemo());
  groups->addStretch();
  auto* grid = new QGridLayout(this);
  grid->addWidget(m_card, 0, 0, Qt::AlignTop);
  grid->addLayout(groups, 0, 1);
  grid->addLayout(BuildBottom(), 1, 0, 1, 2);
  grid->setHorizontalSpacing(16);
  layout()->setSizeConstraint(QLayout::SetFixedSize);
}

QPushButton* frmCardSet::button(const char* name, const QString& caption, void (frmCardSet::*handler)()) {
  auto* made = new QPushButton(caption);
  made->setObjectName(QLatin1String(name));
  connect(made, &QPushButton::clicked, this, [this, handler] {
    lblFailure->clear();
    (this->*handler)();
  });
  return made;
}

QWidget* frmCardSet::BuildUnit() {
  auto* group = new QGroupBox(QStringLiteral("单位信息设定"));
  auto* grid = new QGridLayout(group);
  grid->addWidget(button("btnUnitName", QStringLiteral("单位名称(&N)..."), &frmCardSet::btnUnitName_Click), 0,
                  0);
  grid->addWidget(button("btnUnitFont", QStringLiteral("字体(&F)..."), &frmCardSet::btnUnitFont_Click), 1, 0);
  grid->addWidget(note("lblUnitSize", QStringLiteral("字号只取整数磅")), 1, 1);
  grid->addWidget(button("btnUnitColor", QStringLiteral("颜色(&C)..."), &frmCardSet::btnUnitColor_Click), 2,
                  0);
  grid->addWidget(button("btnUnitLogo", QStringLiteral("标志图片(&L)..."), &frmCardSet::btnUnitLogo_Click), 3,
                  0);
  // Room for the warning, so that nothing moves when it comes.
  lblLogoWarning->setFixedSize(fontMetrics().horizontalAdvance(u'宽') * 15, fontMetrics().lineSpacing() * 3);
  lblLogoWarning->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  grid->addWidget(lblLogoWarning, 3, 1, 2, 1);
  return group;
}

QWidget* frmCardSet::BuildMemo() {
  auto* group = new QGroupBox(QStringLiteral("备注信息设定"));
  auto* grid = new QGridLayout(group);
  grid->addWidget(button("btnMemoText", QStringLiteral("备注内容(&M)..."), &frmCardSet::btnMemoText_Click), 0,
                  0);
  grid->addWidget(button("btnMemoFont", QStringLiteral("字体(&T)..."), &frmCardSet::btnMemoFont_Click), 1, 0);
  grid->addWidget(note("lblMemoSize", QStringLiteral("字号只取整数磅")), 1, 1);
  grid->addWidget(button("btnMemoColor", QStringLiteral("颜色(&R)..."), &frmCardSet::btnMemoColor_Click), 2,
                  0);
  grid->setColumnStretch(1, 1);
  return group;
}

QLayout* frmCardSet::BuildBottom() {
  auto* close = new QPushButton(QStringLiteral("关闭"));
  close->setObjectName(QStringLiteral("btnClose"));
  connect(close, &QPushButton::clicked, this, &QDialog::close);
  lblFailure->setFixedHeight(fontMetrics().lineSpacing() * 2);
  auto* row = new QHBoxLayout;
  row->addWidget(lblFailure, 1);
  row->addWidget(close);
  return row;
}

void frmCardSet::Tell(bool stored, const QString& what) {
  if (stored) return;
  lblFailure->setText(
      QStringLiteral("%1未能保存：设置文件不能写入，或者内容含有设置文件不能存放的字符、超过 254 "
                     "个字节。")
          .arg(what));
}

void frmCardSet::AskText(const Line& line) {
  m_style.InitConfigGroupName(line.design.group);
  const auto answer = dialogs::InputBoxText({line.prompt, QStringLiteral("输入显示名称"), m_style.GetName()});
  const QString text = answer.value_or(QString()).trimmed();
  if (text.isEmpty()) return;
  const bool stored = m_style.SetName(text);
  Tell(stored && m_style.GetName() == text, QStringLiteral("“%1”").arg(text.left(20)));
  ShowStored(line);
}

void frmCardSet::AskFont(const Line& line) {
  m_style.InitConfigGroupName(line.design.group);
  const QString size = m_style.GetSize();
  const dialogs::FontBox preset{m_style.GetFont(), size.toDouble(), m_style.GetBold(), m_style.GetItalic()};
  const auto chosen = dialogs::chooseFont(preset);
  // A cancelled box gives back what it was opened with, and that is stored too: only a size that was chosen
  // is made a whole one.
  const bool stored = StoreFont(chosen.value_or(preset), chosen ? wholePoints(chosen->size) : size);
  if (chosen) Tell(stored, QStringLiteral("字体"));
  ShowStored(line);
}

bool frmCardSet::StoreFont(const dialogs::FontBox& font, const QString& points) {
  bool stored = true;
  if (!font.name.trimmed().isEmpty()) stored = m_style.SetFont(font.name.trimmed());
  if (!points.isEmpty()) stored = m_style.SetSize(points) && stored;
  stored = m_style.SetBold(font.bold) && stored;
  return m_style.SetItalic(font.italic) && stored;
}

void frmCardSet::AskColor(const Line& line) {
  m_style.InitConfigGroupName(line.design.group);
  const auto chosen = dialogs::chooseColor({m_style.GetColor()});
  if (!chosen) return;
  Tell(m_style.SetColor(chosen->color), QStringLiteral("颜色"));
  ShowStored(line);
}

void frmCardSet::btnUnitName_Click() {
  AskText(unitLine());
}

void frmCardSet::btnUnitFont_Click() {
  AskFont(unitLine());
}

void frmCardSet::btnUnitColor_Click() {
  AskColor(unitLine());
}

void frmCardSet::btnMemoText_Click() {
  AskText(memoLine());
}

void frmCardSet::btnMemoFont_Click() {
  AskFont(memoLine());
}

void frmCardSet::btnMemoColor_Click() {
  AskColor(memoLine());
}

void frmCardSet::btnUnitLogo_Click() {
  dialogs::FileBox box;
  box.title = QStringLiteral("选择标志图片");
  box.filter = logoFilter;
  box.flags = dialogs::FileMustExist;
  const QStringList chosen = dialogs::chooseFile(box);
  if (chosen.isEmpty()) return;
  try {
    TakeLogo(chosen.front());
  } catch (const runtime::RuntimeError& error) {
    warn(error.description());
  }
}

bool frmCardSet::StoreLogo(const QString& path) {
  clsLogo logo;
  const QString before = logo.GetPath();
  if (logo.SetPath(path) && logo.GetPath() == path) return true;
  // A path that does not come back whole would leave the card without the logo that it has.
  std::ignore = logo.SetPath(before);
  return false;
}

void frmCardSet::TakeLogo(const QString& path) {
  const QString name = QFileInfo(path).fileName();
  if (logo::isProgramFile(name)) {
    warn(QStringLiteral("“%1”是程序自己的文件名，请把图片改名后再选择！").arg(name));
    return;
  }
  if (logo::isInPlace(path)) {
    lblFailure->setText(QStringLiteral("“%1”已经在程序目录中，没有改变。").arg(name));
    return;
  }
  const graphics::PicturePointer picture = logo::read(path);
  Tell(StoreLogo(logo::keep(*picture, name)), QStringLiteral("标志图片"));
  ShowLogo();
}
