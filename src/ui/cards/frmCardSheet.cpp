#include "ui/cards/frmCardSheet.h"

#include <cmath>

#include <QGridLayout>
#include <QGroupBox>

#include "ui/Controls.h"

namespace {

constexpr double tenths = 10;
constexpr double twipsPerMillimetre = 1440 / 25.4;

QDoubleSpinBox* makeOffsetBox(const char* name) {
  auto* box = named(name, new QDoubleSpinBox);
  box->setDecimals(1);
  box->setSingleStep(1 / tenths);
  box->setRange(-CardSheet::farthest / tenths, CardSheet::farthest / tenths);
  box->setSuffix(QStringLiteral(" 毫米"));
  return box;
}

QString millimetres(int twips) {
  return QString::number(twips / twipsPerMillimetre, 'f', 1);
}

/// How much paper remains around the cards.
QString marginsOf(const CardSheet& sheet) {
  const QRect first = sheet.box(1);
  const QRect last = sheet.box(CardSheet::places);
  const QSize paper = CardSheet::paperSize;
  return QStringLiteral("卡片到纸边：左 %1，右 %2，上 %3，下 %4 毫米")
      .arg(millimetres(first.left()), millimetres(paper.width() - last.left() - last.width()),
           millimetres(first.top()), millimetres(paper.height() - last.top() - last.height()));
}

}  // namespace

frmCardSheet::frmCardSheet(const CardSheet& sheet, int cards, QWidget* parent)
    : QDialog(parent),
      m_cards(cards),
      picSheet(new SheetPicture("picSheet")),
      txtStart(named("txtStart", new QSpinBox)),
      chkCutMarks(named("chkCutMarks", new QCheckBox(QStringLiteral("打印裁切线(&C)")))),
      txtRight(makeOffsetBox("txtRight")),
      txtDown(makeOffsetBox("txtDown")),
      optListed(named("optListed", new QRadioButton(QStringLiteral("按列表的顺序，从上到下(&L)")))),
      optByNumber(named("optByNumber", new QRadioButton(QStringLiteral("按员工号(&N)")))),
      lblSheets(named("lblSheets", new QLabel)),
      lblMargins(named("lblMargins", new QLabel)) {
  BuildWindow();
  Fill(sheet);
  Connect();
  ShowSheet();
}

void frmCardSheet::BuildWindow() {
  setObjectName(QStringLiteral("frmCardSheet"));
  setWindowTitle(QStringLiteral("拼版打印"));
  txtStart->setRange(1, CardSheet::places);
  auto* grid = new QGridLayout(this);
  grid->addWidget(picSheet, 0, 0, 2, 1, Qt::AlignTop);
  grid->addLayout(BuildChoices(), 0, 1);
  grid->addLayout(BuildButtons(), 2, 0, 1, 2);
  grid->setHorizontalSpacing(16);
  grid->setVerticalSpacing(12);
  grid->setSizeConstraint(QLayout::SetFixedSize);
  // The picture comes first on the screen and last with the Tab key: the box does the same with fewer keys.
  txtStart->setFocus();
  setTabOrder(optByNumber, picSheet);
}

QLayout* frmCardSheet::BuildChoices() {
  auto* start = new QHBoxLayout;
  start->addWidget(makeLabel("lblStart", QStringLiteral("起始位置(&S)："), txtStart));
  start->addWidget(txtStart);
  start->addWidget(new QLabel(QStringLiteral("（也可以在图上点一下）")));
  start->addStretch();
  auto* order = new QGroupBox(QStringLiteral("顺序"));
  auto* orders = new QVBoxLayout(order);
  orders->addWidget(optListed);
  orders->addWidget(optByNumber);
  auto* offset = new QGroupBox(QStringLiteral("整体偏移（负数向左、向上）"));
  offset->setLayout(BuildOffset());
  auto* column = new QVBoxLayout;
  column->addLayout(start);
  column->addWidget(chkCutMarks);
  column->addWidget(offset);
  column->addWidget(order);
  column->addStretch();
  column->addWidget(lblSheets);
  return column;
}

QLayout* frmCardSheet::BuildOffset() {
  auto* grid = new QGridLayout;
  grid->addWidget(makeLabel("lblRight", QStringLiteral("向右(&R)："), txtRight), 0, 0);
  grid->addWidget(txtRight, 0, 1);
  grid->addWidget(makeLabel("lblDown", QStringLiteral("向下(&D)："), txtDown), 0, 2);
  grid->addWidget(txtDown, 0, 3);
  grid->addWidget(lblMargins, 1, 0, 1, 5);
  grid->setColumnStretch(4, 1);
  return grid;
}

QLayout* frmCardSheet::BuildButtons() {
  auto* preview = named("btnPreview", new QPushButton(QStringLiteral("预览(&P)")));
  auto* cancel = named("btnCancel", new QPushButton(QStringLiteral("取消")));
  preview->setDefault(true);
  cancel->setAutoDefault(false);
  connect(preview, &QPushButton::clicked, this, &QDialog::accept);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  return makeButtonRow({preview, cancel});
}

void frmCardSheet::Fill(const CardSheet& sheet) {
  txtStart->setValue(sheet.start);
  chkCutMarks->setChecked(sheet.cutMarks);
  txtRight->setValue(sheet.right / tenths);
  txtDown->setValue(sheet.down / tenths);
  (sheet.order == CardSheet::Order::ByNumber ? optByNumber : optListed)->setChecked(true);
}

void frmCardSheet::Connect() {
  connect(picSheet, &SheetPicture::startChosen, txtStart, &QSpinBox::setValue);
  connect(txtStart, &QSpinBox::valueChanged, this, &frmCardSheet::ShowSheet);
  connect(chkCutMarks, &QCheckBox::toggled, this, &frmCardSheet::ShowSheet);
  connect(txtRight, &QDoubleSpinBox::valueChanged, this, &frmCardSheet::ShowSheet);
  connect(txtDown, &QDoubleSpinBox::valueChanged, this, &frmCardSheet::ShowSheet);
}

CardSheet frmCardSheet::Sheet() const {
  CardSheet sheet;
  sheet.start = txtStart->value();
  sheet.cutMarks = chkCutMarks->isChecked();
  sheet.right = static_cast<int>(std::lround(txtRight->value() * tenths));
  sheet.down = static_cast<int>(std::lround(txtDown->value() * tenths));
  sheet.order = optByNumber->isChecked() ? CardSheet::Order::ByNumber : CardSheet::Order::AsListed;
  return sheet;
}

void frmCardSheet::ShowSheet() {
  const CardSheet sheet = Sheet();
  picSheet->setSheet(sheet, m_cards);
  lblSheets->setText(
      QStringLiteral("%1 张签到卡，用 %2 张 A4 纸").arg(m_cards).arg(sheet.sheetsFor(m_cards)));
  lblMargins->setText(marginsOf(sheet));
}
