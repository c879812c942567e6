#include "ui/cards/frmCardSet.h"

#include <cmath>
#include <tuple>

#include <QFileInfo>
#include <QGridLayout>
#include <QGroupBox>

#include "dialogs/Dialogs.h"
#include "printing/DefaultLogo.h"
#include "printing/LogoFile.h"
#include "printing/clsLogo.h"
#include "runtime/ProgramDirectory.h"
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
  return {QStringLiteral("UNIT"), QStringLiteral("隶书"), QStringLiteral("请输入签到卡显示的单位名称："),
          m_card->unit()};
}

frmCardSet::Line frmCardSet::memoLine() {
  return {QStringLiteral("MEMO"), QStringLiteral("Arial"), QStringLiteral("请输入签到卡备注内容："),
          m_card->memo()};
}

void frmCardSet::Form_Load() {
  ShowStored(unitLine());
  ShowStored(memoLine());
  ShowLogo();
}

void frmCardSet::ShowStored(const Line& line) {
  m_style.InitConfigGroupName(line.group);
  const QString font = m_style.GetFont();
  CardText::Look look;
  look.caption = m_style.GetName();
  look.font.name = font.isEmpty() ? line.designFont : font;
  look.font.size = m_style.GetSize().toDouble();
  look.color = m_style.GetColor();
  look.font.bold = m_style.GetBold();
  look.font.italic = m_style.GetItalic();
  line.preview.setLook(look);
}

void frmCardSet::ShowLogo() {
  const QString path = runtime::nativePath(clsLogo().GetPath());
  const bool isThere = !path.isEmpty() && runtime::isNormalFile(path);
  const bool goes = isThere && logo::isDeletedLater(QFileInfo(path).fileName());
  lblLogoWarning->setText(
      goes ? QStringLiteral("程序以后会删除与此标志同名的照片文件，请把图片改名后重新选择。") : QString());
  try {
    m_card->setLogo(isThere ? *logo::read(path) : *defaultLogo());
  } catch (const runtime::RuntimeError& error) {
    m_card->setLogo(*defaultLogo());
    lblFailure->setText(error.description());
  }
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
  m_style.InitConfigGroupName(line.group);
  const auto answer = dialogs::InputBoxText({line.prompt, QStringLiteral("输入显示名称"), m_style.GetName()});
  const QString text = answer.value_or(QString()).trimmed();
  if (text.isEmpty()) return;
  const bool stored = m_style.SetName(text);
  Tell(stored && m_style.GetName() == text, QStringLiteral("“%1”").arg(text.left(20)));
  ShowStored(line);
}

void frmCardSet::AskFont(const Line& line) {
  m_style.InitConfigGroupName(line.group);
  const auto chosen = dialogs::chooseFont(
      {m_style.GetFont(), m_style.GetSize().toDouble(), m_style.GetBold(), m_style.GetItalic()});
  if (!chosen) return;
  const double size = std::nearbyint(chosen->size);
  bool stored = true;
  if (!chosen->name.trimmed().isEmpty()) stored = m_style.SetFont(chosen->name.trimmed());
  if (size > 0 && std::isfinite(size)) stored = m_style.SetSize(QString::number(size, 'f', 0)) && stored;
  stored = m_style.SetBold(chosen->bold) && stored;
  stored = m_style.SetItalic(chosen->italic) && stored;
  Tell(stored, QStringLiteral("字体"));
  ShowStored(line);
}

void frmCardSet::AskColor(const Line& line) {
  m_style.InitConfigGroupName(line.group);
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
