#include "ui/months/frmMonthReport.h"

#include <QFormLayout>
#include <QHBoxLayout>

#include "dialogs/Dialogs.h"
#include "exchange/MonthWorkbook.h"
#include "graphics/WaitCursor.h"
#include "preview/DocumentOutput.h"
#include "runtime/Clock.h"
#include "runtime/OutputGuard.h"
#include "runtime/RuntimeError.h"
#include "ui/Controls.h"
#include "ui/months/MonthPreview.h"

namespace {

const QLatin1String workbookEnding(".xlsx");
constexpr int longestUnit = 100;

QPushButton* makeButton(const char* name, const QString& caption) {
  auto* button = named(name, new QPushButton(caption));
  button->setAutoDefault(false);
  return button;
}

void tell(const QString& failure) {
  dialogs::MsgBox(failure, dialogs::Exclamation, QStringLiteral("错误"));
}

}  // namespace

frmMonthReport::frmMonthReport(QWidget* parent)
    : QDialog(parent),
      txtYear(named("txtYear", new QSpinBox)),
      cbMonth(named("cbMonth", new QComboBox)),
      txtSchoolName(named("txtSchoolName", new QLineEdit(m_area.SNAME()))),
      lblNobodys(named("lblNobodys", new QLabel)) {
  BuildWindow();
  const AttendanceMonth proposed = AttendanceMonth::proposedOn(runtime::now().date());
  txtYear->setValue(proposed.year());
  cbMonth->setCurrentIndex(proposed.month() - 1);
  connect(txtYear, &QSpinBox::valueChanged, this, &frmMonthReport::ShowMonth);
  connect(cbMonth, &QComboBox::currentIndexChanged, this, &frmMonthReport::ShowMonth);
  ShowMonth();
}

void frmMonthReport::BuildWindow() {
  setObjectName(QStringLiteral("frmMonthReport"));
  auto* column = new QVBoxLayout(this);
  column->addLayout(BuildFields());
  lblNobodys->setWordWrap(true);
  lblNobodys->setTextFormat(Qt::PlainText);
  // Room for the sentence, so that nothing moves when it comes.
  lblNobodys->setFixedHeight(fontMetrics().lineSpacing() * 3);
  lblNobodys->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  column->addWidget(lblNobodys);
  column->addSpacing(8);
  column->addLayout(BuildButtons());
  column->setSizeConstraint(QLayout::SetFixedSize);
}

QLayout* frmMonthReport::BuildFields() {
  txtYear->setRange(AttendanceMonth::firstYear, AttendanceMonth::lastYear);
  for (int month = 1; month <= 12; ++month) cbMonth->addItem(QString::number(month));
  txtSchoolName->setMaxLength(longestUnit);
  txtSchoolName->setMinimumWidth(txtSchoolName->fontMetrics().averageCharWidth() * 40);

  auto* monthRow = new QHBoxLayout;
  monthRow->addWidget(txtYear);
  monthRow->addWidget(new QLabel(QStringLiteral("年")));
  monthRow->addWidget(cbMonth);
  monthRow->addWidget(new QLabel(QStringLiteral("月")));
  monthRow->addStretch();
  auto* fields = new QFormLayout;
  fields->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
  auto* monthLabel = new QLabel(QStringLiteral("月份(&D)："));
  monthLabel->setBuddy(txtYear);
  fields->addRow(monthLabel, monthRow);
  fields->addRow(QStringLiteral("单位名称(&U)："), txtSchoolName);
  return fields;
}

QLayout* frmMonthReport::BuildButtons() {
  auto* preview = makeButton("btnPreview", QStringLiteral("预览(&P)"));
  auto* exporting = makeButton("btnExport", QStringLiteral("导出Excel(&X)..."));
  auto* closing = makeButton("btnClose", QStringLiteral("关闭"));
  preview->setDefault(true);
  connect(preview, &QPushButton::clicked, this, &frmMonthReport::btnPreview_Click);
  connect(exporting, &QPushButton::clicked, this, &frmMonthReport::btnExport_Click);
  connect(closing, &QPushButton::clicked, this, &QDialog::reject);
  return makeButtonRow({preview, exporting, closing});
}

AttendanceMonth frmMonthReport::Month() const {
  return *AttendanceMonth::make(txtYear->value(), cbMonth->currentIndex() + 1);
}

QString frmMonthReport::Unit() const {
  return txtSchoolName->text().trimmed();
}

void frmMonthReport::ShowMonth() {
  setWindowTitle(QStringLiteral("月考勤报表 - ") + Month().text());
  lblNobodys->clear();
}

void frmMonthReport::StoreUnit() {
  if (Unit() == m_area.SNAME()) return;
  const QString before = m_area.SNAME();
  m_area.setSNAME(Unit());
  if (m_area.SaveInfo()) return;
  m_area.setSNAME(before);
  tell(QStringLiteral("单位名称“%1”未能保存。").arg(Unit()));
}

void frmMonthReport::done(int result) {
  StoreUnit();
  QDialog::done(result);
}

void frmMonthReport::Try(const std::function<void()>& work) const {
  try {
    work();
  } catch (const runtime::RuntimeError& error) {
    tell(QStringLiteral("%1的考勤未能读取或写出：%2").arg(Month().text(), error.description()));
  }
}

MonthData frmMonthReport::Load() {
  const graphics::WaitCursor wait;
  MonthData loaded = loadMonth(Month(), Unit());
  lblNobodys->setText(sentenceOn(loaded.nobodys));
  return loaded;
}

void frmMonthReport::btnPreview_Click() {
  StoreUnit();
  Try([this] {
    EmployeeMonthReport report;
    report.setMonth(Load());
    showMonthPreview(report);
  });
}

void frmMonthReport::btnExport_Click() {
  StoreUnit();
  dialogs::FileBox box;
  box.save = true;
  box.title = QStringLiteral("导出 ") + Month().text();
  box.filter = QStringLiteral("Excel工作簿|*.xlsx");
  box.fileName = preview::fileNameFor(Month().title(Unit()), workbookEnding);
  const QStringList chosen = dialogs::chooseFile(box);
  if (chosen.isEmpty()) return;
  Try([&] { Export(chosen.first()); });
}

void frmMonthReport::Export(const QString& path) {
  // Any other name may be that of a file that something else lives on.
  if (!path.endsWith(workbookEnding, Qt::CaseInsensitive)) {
    tell(QStringLiteral("文件名必须以“.xlsx”结尾：\n") + path);
    return;
  }
  runtime::requireFreeForOutput(path);
  {
    const graphics::WaitCursor wait;
    writeMonthWorkbook(Load(), path);
  }
  dialogs::MsgBox(QStringLiteral("已导出%1的考勤：\n").arg(Month().text()) + path, dialogs::Information,
                  QStringLiteral("信息"));
}
