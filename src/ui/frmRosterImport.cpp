#include "ui/frmRosterImport.h"

#include <algorithm>
#include <array>

#include <QFileInfo>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>

#include "dialogs/Dialogs.h"
#include "exchange/RosterCsv.h"
#include "runtime/OutputGuard.h"
#include "runtime/ReplacingFile.h"
#include "runtime/RuntimeError.h"
#include "ui/CancelProgress.h"
#include "ui/Controls.h"

namespace {

const QLatin1String csvEnding(".csv");

/// Widths of the columns before the last one, in characters of Chinese.
constexpr std::array columnWidths = {4, 7, 7, 10, 8, 11};

/// Shows a path that only the button beside it changes.
QLineEdit* makePathBox(const char* name) {
  auto* box = named(name, new QLineEdit);
  box->setReadOnly(true);
  box->setFocusPolicy(Qt::ClickFocus);
  return box;
}

void tell(const QString& text, dialogs::MessageStyle style, const QString& title) {
  dialogs::MsgBox(text, style, title);
}

void tellFailure(const QString& text) {
  tell(text, dialogs::Exclamation, QStringLiteral("错误"));
}

QString summaryOf(const RosterCounts& counts) {
  if (counts.right() + counts.wrong == 0) return QStringLiteral("名单中没有员工");
  const QString lines = QStringLiteral("共 %1 行：").arg(counts.right() + counts.wrong) + counts.text();
  return counts.wrong == 0 ? lines : lines + QStringLiteral("，有错 %1 行").arg(counts.wrong);
}

}  // namespace

frmRosterImport::frmRosterImport(QWidget* parent)
    : QDialog(parent),
      txtFile(makePathBox("txtFile")),
      txtFolder(makePathBox("txtFolder")),
      btnFile(named("btnFile", new QPushButton(QStringLiteral("选择(&O)...")))),
      btnFolder(named("btnFolder", new QPushButton(QStringLiteral("选择(&D)...")))),
      chkCreateDepts(named("chkCreateDepts", new QCheckBox(QStringLiteral("新建缺少的部门(&N)")))),
      chkSkipBad(named("chkSkipBad", new QCheckBox(QStringLiteral("跳过有错的行(&S)")))),
      chkOnlyBad(named("chkOnlyBad", new QCheckBox(QStringLiteral("只显示有错的行(&W)")))),
      lsvLines(named("lsvLines", new QTreeView)),
      lblSummary(named("lblSummary", new QLabel)),
      pbProgress(named("pbProgress", new QProgressBar)),
      btnCancel(named("btnCancel", new QPushButton(QStringLiteral("取消(&C)")))),
      btnTemplate(named("btnTemplate", new QPushButton(QStringLiteral("另存模板(&T)...")))),
      btnRecheck(named("btnRecheck", new QPushButton(QStringLiteral("重新核对(&R)")))),
      btnImport(named("btnImport", new QPushButton(QStringLiteral("导入(&I)")))),
      btnClose(named("btnClose", new QPushButton(QStringLiteral("关闭")))) {
  BuildWindow();
  Connect();
  ShowLines();
}

void frmRosterImport::BuildWindow() {
  setObjectName(QStringLiteral("frmRosterImport"));
  setWindowTitle(QStringLiteral("批量导入员工"));
  BuildList();
  auto* column = new QVBoxLayout(this);
  column->addLayout(BuildSources());
  column->addLayout(BuildOptions());
  column->addWidget(lsvLines, 1);
  column->addLayout(BuildProgress());
  column->addLayout(BuildButtons());
  const int character = fontMetrics().horizontalAdvance(u'宋');
  resize(character * 80, character * 40);
  btnFile->setFocus();
}

QLayout* frmRosterImport::BuildSources() {
  auto* grid = new QGridLayout;
  grid->addWidget(makeLabel("lblFile", QStringLiteral("名单文件："), btnFile), 0, 0);
  grid->addWidget(txtFile, 0, 1);
  grid->addWidget(btnFile, 0, 2);
  grid->addWidget(makeLabel("lblFolder", QStringLiteral("照片文件夹："), btnFolder), 1, 0);
  grid->addWidget(txtFolder, 1, 1);
  grid->addWidget(btnFolder, 1, 2);
  txtFile->setPlaceholderText(QStringLiteral("CSV 文件，列为：编号、姓名、部门、录入日期、条码（可以没有）"));
  txtFolder->setPlaceholderText(QStringLiteral("照片以编号命名，例如 A001.jpg；原照片不会改动"));
  return grid;
}

QLayout* frmRosterImport::BuildOptions() {
  auto* row = new QHBoxLayout;
  row->addWidget(chkCreateDepts);
  row->addWidget(chkSkipBad);
  row->addStretch();
  row->addWidget(chkOnlyBad);
  return row;
}

QLayout* frmRosterImport::BuildProgress() {
  auto* row = new QHBoxLayout;
  row->addWidget(lblSummary, 1);
  row->addWidget(pbProgress);
  row->addWidget(btnCancel);
  lblSummary->setTextFormat(Qt::PlainText);
  pbProgress->setVisible(false);
  btnCancel->setVisible(false);
  return row;
}

QLayout* frmRosterImport::BuildButtons() {
  btnImport->setDefault(true);
  auto* row = new QHBoxLayout;
  row->addWidget(btnTemplate);
  row->addLayout(makeButtonRow({btnRecheck, btnImport, btnClose}));
  return row;
}

void frmRosterImport::BuildList() {
  lsvLines->setModel(&m_rows);
  lsvLines->setRootIsDecorated(false);
  lsvLines->setUniformRowHeights(true);
  lsvLines->setAlternatingRowColors(true);
  const int character = fontMetrics().horizontalAdvance(u'宋');
  for (std::size_t i = 0; i < columnWidths.size(); ++i) {
    lsvLines->header()->resizeSection(static_cast<int>(i), columnWidths[i] * character);
  }
}

void frmRosterImport::Connect() {
  connect(btnFile, &QPushButton::clicked, this, &frmRosterImport::btnFile_Click);
  connect(btnFolder, &QPushButton::clicked, this, &frmRosterImport::btnFolder_Click);
  connect(btnTemplate, &QPushButton::clicked, this, &frmRosterImport::btnTemplate_Click);
  connect(btnRecheck, &QPushButton::clicked, this, &frmRosterImport::Check);
  connect(btnImport, &QPushButton::clicked, this, &frmRosterImport::btnImport_Click);
  connect(btnCancel, &QPushButton::clicked, this, &frmRosterImport::btnCancel_Click);
  connect(btnClose, &QPushButton::clicked, this, &frmRosterImport::reject);
  connect(chkCreateDepts, &QCheckBox::toggled, this, &frmRosterImport::Judge);
  connect(chkSkipBad, &QCheckBox::toggled, this, &frmRosterImport::UpdateButtons);
  connect(chkOnlyBad, &QCheckBox::toggled, this, &frmRosterImport::ShowLines);
}

RosterOptions frmRosterImport::Options() const {
  return {.createDepartments = chkCreateDepts->isChecked(), .skipBad = chkSkipBad->isChecked()};
}

void frmRosterImport::btnFile_Click() {
  dialogs::FileBox box;
  box.title = QStringLiteral("选择名单文件");
  box.filter = QStringLiteral("CSV文件|*.csv|所有文件|*");
  box.fileName = txtFile->text();
  box.flags = dialogs::FileMustExist;
  const QStringList chosen = dialogs::chooseFile(box);
  if (chosen.isEmpty()) return;
  txtFile->setText(chosen.first());
  btnFolder->setFocus();
  Check();
}

void frmRosterImport::btnFolder_Click() {
  const QString beside = txtFile->text().isEmpty() ? QString() : QFileInfo(txtFile->text()).path();
  const QString shown = txtFolder->text().isEmpty() ? beside : txtFolder->text();
  const auto chosen = dialogs::chooseFolder({QStringLiteral("选择照片文件夹"), shown});
  if (!chosen) return;
  txtFolder->setText(*chosen);
  Check();
}

void frmRosterImport::btnTemplate_Click() {
  dialogs::FileBox box;
  box.save = true;
  box.title = QStringLiteral("另存模板");
  box.filter = QStringLiteral("CSV文件|*.csv");
  box.fileName = QStringLiteral("员工名单.csv");
  const QString path = dialogs::chooseFile(box).value(0);
  if (path.isEmpty()) return;
  // Any other name may be that of a file that something else lives on.
  if (!path.endsWith(csvEnding, Qt::CaseInsensitive)) {
    tellFailure(QStringLiteral("文件名必须以“.csv”结尾：\n") + path);
    return;
  }
  try {
    runtime::requireFreeForOutput(path);
    runtime::replaceFile(path, rosterTemplate());
  } catch (const runtime::RuntimeError& error) {
    tellFailure(error.description());
    return;
  }
  tell(QStringLiteral("已保存空白名单：\n") + path, dialogs::Information, QStringLiteral("信息"));
}

void frmRosterImport::btnCancel_Click() {
  if (m_progress) m_progress->cancel();
}

void frmRosterImport::reject() {
  if (m_progress) {
    m_progress->cancel();
  } else {
    QDialog::reject();
  }
}

void frmRosterImport::Work(const QString& what, const std::function<void()>& work) {
  QString failure;
  bool cancelled = false;
  {
    CancelProgress progress(*pbProgress);
    m_progress = &progress;
    lblSummary->setText(what);
    btnCancel->setVisible(true);
    btnCancel->setFocus();
    UpdateButtons();
    try {
      work();
    } catch (const runtime::RuntimeError& error) {
      failure = error.description();
    }
    cancelled = progress.isCancelled();
    m_progress = nullptr;
  }
  btnCancel->setVisible(false);
  ShowLines();
  if (cancelled) lblSummary->setText(QStringLiteral("已取消，没有写入任何内容"));
  (btnImport->isEnabled() ? btnImport : btnClose)->setFocus();
  if (failure.isEmpty()) return;
  lblSummary->setText(QStringLiteral("未能完成，没有写入任何内容"));
  tellFailure(failure);
}

void frmRosterImport::Check() {
  if (txtFile->text().isEmpty() || txtFolder->text().isEmpty()) return;
  m_check.reset();
  ShowLines();
  Work(QStringLiteral("正在核对名单和照片..."), [this] {
    auto check = std::make_unique<RosterCheck>(txtFile->text(), txtFolder->text());
    if (!check->checkPhotos()) return;
    check->judge(Options().createDepartments);
    m_check = std::move(check);
  });
}

void frmRosterImport::Judge() {
  if (!m_check) return;
  try {
    m_check->judge(Options().createDepartments);
  } catch (const runtime::RuntimeError& error) {
    m_check.reset();
    tellFailure(error.description());
  }
  ShowLines();
}

void frmRosterImport::ShowLines() {
  std::vector<RosterLine> lines;
  if (m_check) lines = m_check->lines();
  if (chkOnlyBad->isChecked()) std::erase_if(lines, [](const RosterLine& line) { return line.isRight(); });
  m_rows.setLines(std::move(lines));
  lblSummary->setText(m_check ? summaryOf(m_check->counts()) : QStringLiteral("请选择名单文件和照片文件夹"));
  UpdateButtons();
}

void frmRosterImport::UpdateButtons() {
  const bool idle = m_progress == nullptr;
  for (QWidget* control : std::initializer_list<QWidget*>{btnFile, btnFolder, chkCreateDepts, chkSkipBad,
                                                          chkOnlyBad, btnTemplate, btnClose}) {
    control->setEnabled(idle);
  }
  btnRecheck->setEnabled(idle && !txtFile->text().isEmpty() && !txtFolder->text().isEmpty());
  const RosterCounts counts = m_check ? m_check->counts() : RosterCounts();
  btnImport->setEnabled(idle && counts.right() > 0 && (counts.wrong == 0 || chkSkipBad->isChecked()));
}

void frmRosterImport::btnImport_Click() {
  QString done;
  bool complete = false;
  Work(QStringLiteral("正在导入..."), [&] {
    RosterImport import(*m_check);
    if (!import.run(Options())) return;
    const RosterCounts& written = import.written();
    Result = true;
    complete = written.wrong == 0;
    done = QStringLiteral("已导入 %1 名员工：%2").arg(written.right()).arg(written.text());
    if (!complete) done += QStringLiteral("，跳过 %1 行").arg(written.wrong);
    m_check->judge(Options().createDepartments);
  });
  if (done.isEmpty()) return;
  tell(done, dialogs::Information, QStringLiteral("信息"));
  btnClose->setFocus();
  if (complete) accept();
}
