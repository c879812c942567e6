#include "ui/frimEmpImport.h"

#include <tuple>

#include <QFile>
#include <QFileInfo>
#include <QGroupBox>
#include <QHBoxLayout>

#include "dialogs/Dialogs.h"
#include "foundation/Attempt.h"
#include "graphics/WaitCursor.h"
#include "records/PhotoFile.h"
#include "records/clsDeptSet.h"
#include "runtime/Conversions.h"
#include "runtime/ProgramDirectory.h"
#include "ui/Controls.h"
#include "ui/EmpNumberHint.h"
#include "ui/ImportPhoto.h"

namespace {

constexpr int noMoreFiles = 2;

/// The room for the photo, in characters of Chinese.
constexpr QSize photoRoom(11, 15);

QString warning() {
  return QStringLiteral("警告");
}

QString onlyOnce() {
  return QStringLiteral("每个文件只能保存一次，要再次保存，请重新导入这个文件。");
}

QComboBox* makeDeptBox(const QFont& font) {
  auto* box = named("cbDept", new QComboBox);
  box->setEditable(true);
  box->setInsertPolicy(QComboBox::NoInsert);
  box->setFont(font);
  return box;
}

/// Shows the name of a file, which only the program changes.
QLineEdit* makeFileBox() {
  QLineEdit* box = makeTextBox("txtFile");
  box->setReadOnly(true);
  box->setFrame(false);
  box->setFocusPolicy(Qt::ClickFocus);
  QPalette colours = box->palette();
  colours.setColor(QPalette::Base, colours.color(QPalette::Window));
  box->setPalette(colours);
  return box;
}

}  // namespace

frimEmpImport::frimEmpImport(QWidget* parent)
    : QDialog(parent),
      txtFile(makeFileBox()),
      txtName(makeTextBox("txtName")),
      cbDept(makeDeptBox(txtName->font())),
      lblDeptHint(new HintLabel("lblDeptHint")),
      txtInputDate(makeTextBox("txtInputDate")),
      txtEmpNum(makeTextBox("txtEmpNum")),
      lblNumberHint(new HintLabel("lblNumberHint")),
      imgHeader(named("imgHeader", new QLabel)),
      lblFileNote(new HintLabel("lblFileNote")),
      lblReason(new HintLabel("lblReason")),
      pbWorking(named("pbWorking", new QProgressBar)),
      lblProcess(named("lblProcess", new QLabel)),
      btnSave(named("btnSave", new QPushButton(QStringLiteral("保存")))),
      btnNext(named("btnNext", new QPushButton(QStringLiteral("下一条")))) {
  BuildWindow();
  Connect();
}

frimEmpImport::~frimEmpImport() {
  RemovePhoto();
}

void frimEmpImport::BuildWindow() {
  setObjectName(QStringLiteral("frimEmpImport"));
  setWindowTitle(QStringLiteral("导入员工信息"));
  btnSave->setDefault(true);
  for (HintLabel* oneLine : {lblDeptHint, lblFileNote}) {
    oneLine->setFixedHeight(oneLine->fontMetrics().lineSpacing());
  }
  auto* upper = new QHBoxLayout;
  upper->addLayout(BuildFields(), 1);
  upper->addWidget(BuildFrame(), 0, Qt::AlignTop);
  auto* column = new QVBoxLayout(this);
  column->addLayout(upper);
  column->addWidget(lblFileNote);
  column->addWidget(lblReason);
  column->addLayout(BuildProgress());
  column->addLayout(makeButtonRow({btnSave, btnNext}));
  column->setSizeConstraint(QLayout::SetFixedSize);
  setTabOrder(txtName, cbDept);
  setTabOrder(cbDept, txtInputDate);
  setTabOrder(txtInputDate, txtEmpNum);
  setTabOrder(txtEmpNum, btnSave);
  setTabOrder(btnSave, btnNext);
  txtEmpNum->setFocus();
}

QGridLayout* frimEmpImport::BuildFields() {
  auto* grid = new QGridLayout;
  const auto row = [grid](int line, const char* name, const QString& caption, QWidget* field) {
    grid->addWidget(makeLabel(name, caption, field), line, 0);
    grid->addWidget(field, line, 1);
  };
  row(0, "Label5", QStringLiteral("文    件"), txtFile);
  row(1, "Label1", QStringLiteral("姓    名"), txtName);
  row(2, "Label2", QStringLiteral("部    门"), cbDept);
  grid->addWidget(lblDeptHint, 3, 1);
  row(4, "Label3", QStringLiteral("录入日期"), txtInputDate);
  row(5, "Label4", QStringLiteral("员工编号"), txtEmpNum);
  grid->addWidget(lblNumberHint, 6, 1);
  return grid;
}

QWidget* frimEmpImport::BuildFrame() {
  auto* Frame1 = named("Frame1", new QGroupBox);
  imgHeader->setFixedSize(photoRoom * fontMetrics().horizontalAdvance(u'宋'));
  imgHeader->setAlignment(Qt::AlignCenter);
  imgHeader->setAccessibleName(QStringLiteral("照片"));
  imgHeader->setText(QStringLiteral("（没有照片）"));
  auto* room = new QVBoxLayout(Frame1);
  room->addWidget(imgHeader);
  return Frame1;
}

QLayout* frimEmpImport::BuildProgress() {
  pbWorking->setTextVisible(false);
  auto* row = new QHBoxLayout;
  row->addWidget(pbWorking, 1);
  row->addWidget(lblProcess);
  return row;
}

void frimEmpImport::Connect() {
  connect(btnSave, &QPushButton::clicked, this, &frimEmpImport::btnSave_Click);
  connect(btnNext, &QPushButton::clicked, this, &frimEmpImport::btnNext_Click);
  connect(cbDept, &QComboBox::currentTextChanged, this, [this] { NoteDept({}); });
  connect(txtEmpNum, &QLineEdit::textChanged, this, &frimEmpImport::ShowNumberHint);
}

void frimEmpImport::SetFileList(const QStringList& list) {
  FileList = list;
}

void frimEmpImport::Form_Load() {
  InitProgress();
  // An earlier run that ended badly may have left one behind: it is nobody's photo here.
  RemovePhoto();
  FillDeptList();
  std::ignore = ShowNext();
}

void frimEmpImport::done(int result) {
  RemovePhoto();
  QDialog::done(result);
}

void frimEmpImport::RemovePhoto() const {
  if (!TempImgPath.isEmpty() && runtime::isNormalFile(TempImgPath)) {
    std::ignore = QFile::remove(TempImgPath);
  }
}

void frimEmpImport::InitProgress() {
  CurIndex = 0;
  FileCount = static_cast<int>(FileList.size());
  pbWorking->setRange(0, FileCount);
  TempImgPath = runtime::appFile(QStringLiteral("temp.jpg"));
  ShowProgress();
}

void frimEmpImport::ShowProgress() {
  pbWorking->setValue(CurIndex);
  lblProcess->setText(QStringLiteral("%1/%2").arg(CurIndex).arg(FileCount));
}

void frimEmpImport::FillDeptList() {
  const clsDeptSet departments;
  for (int i = 1; i <= departments.Count(); ++i) cbDept->addItem(departments.Item(i)->DNAME());
  // The list alone chooses nothing.
  cbDept->setCurrentIndex(-1);
  NoteDept(departments.firstFailure());
}

int frimEmpImport::ShowNext() {
  if (CurIndex >= FileCount) return noMoreFiles;
  const QString& path = FileList[CurIndex];
  const int result = LoadEmpFile(path);
  NoteLoading(path, result);
  ++CurIndex;
  ShowProgress();
  UpdateNextButton();
  btnSave->setEnabled(true);
  askAgain(*txtEmpNum);
  return result;
}

void frimEmpImport::UpdateNextButton() {
  btnNext->setEnabled(CurIndex < FileCount);
}

int frimEmpImport::LoadEmpFile(const QString& path) {
  const graphics::WaitCursor waiting;
  EmployeeFile file;
  int result = file.Load(path);
  m_failure = file.lastFailure();
  ShowValues(file);
  if (result == EmployeeFile::Loaded) {
    result = attempt(m_failure, int{EmployeeFile::Failed}, [&] {
      savePhoto(*file.photo(), TempImgPath);
      ShowPhoto();
      return int{EmployeeFile::Loaded};
    });
  }
  if (result == EmployeeFile::Loaded || result == EmployeeFile::NoRow) txtEmpNum->clear();
  return result;
}

/// Of a file that could not be read completely, what was read.
void frimEmpImport::ShowValues(const EmployeeFile& file) {
  if (file.name()) txtName->setText(*file.name());
  if (file.department()) SelectDept(*file.department());
  if (file.enterDate()) txtInputDate->setText(*file.enterDate());
}

void frimEmpImport::ShowPhoto() {
  const qreal ratio = devicePixelRatioF();
  QPixmap photo = QPixmap::fromImage(photoAt(TempImgPath, imgHeader->size() * ratio));
  photo.setDevicePixelRatio(ratio);
  imgHeader->setPixmap(photo);
}

void frimEmpImport::NoteLoading(const QString& path, int result) {
  txtFile->setText(QFileInfo(path).fileName());
  txtFile->setCursorPosition(0);
  txtFile->setToolTip(path.toHtmlEscaped());
  lblFileNote->showHint(
      result == EmployeeFile::Loaded ? QString() : QStringLiteral("此文件未能完整读取，请核对后再保存"));
  lblReason->showHint(m_failure);
}

void frimEmpImport::SelectDept(std::int16_t id) {
  clsDept dept;
  dept.setID(id);
  if (!dept.DNAME().isEmpty()) {
    cbDept->setCurrentText(dept.DNAME());
    NoteDept({});
  } else if (!dept.lastFailure().isEmpty()) {
    NoteDept(dept.lastFailure());
  } else {
    NoteDept(QStringLiteral("文件中的部门（编号 %1）不存在，请选择。").arg(id));
  }
}

void frimEmpImport::NoteDept(const QString& note) {
  m_deptNote = note;
  ShowDeptHint();
}

clsDept frimEmpImport::SelectedDept() const {
  clsDept dept;
  dept.setDNAME(cbDept->currentText().trimmed());
  return dept;
}

std::int16_t frimEmpImport::GetSelectedDeptID() const {
  const std::int16_t id = SelectedDept().ID();
  return id >= 1 ? id : std::int16_t{-1};
}

void frimEmpImport::ShowDeptHint() {
  const QString name = cbDept->currentText().trimmed();
  QString hint = quoteHint(QStringLiteral("部门名称"), name);
  if (hint.isEmpty() && m_looksUp && !name.isEmpty()) {
    const clsDept dept = SelectedDept();
    m_looksUp = dept.lastFailure().isEmpty();
    if (dept.ID() < 1 && m_looksUp) hint = QStringLiteral("没有这个部门，保存会失败。");
  }
  lblDeptHint->showHint(hint.isEmpty() ? m_deptNote : hint);
}

void frimEmpImport::ShowNumberHint() {
  const QString number = txtEmpNum->text().trimmed();
  QString failure;
  const QString hint =
      m_looksUp ? attempt(failure, QString(), [&number] { return empNumberHint(number); }) : QString();
  if (!failure.isEmpty()) m_looksUp = false;
  lblNumberHint->showHint(hint.isEmpty() ? failure : hint);
}

void frimEmpImport::Refuse(const QString& text, QWidget* field) const {
  dialogs::MsgBox(text, dialogs::Exclamation, warning());
  field->setFocus();
}

bool frimEmpImport::CheckInput() {
  if (txtName->text().trimmed().isEmpty()) {
    Refuse(QStringLiteral("请输入员工姓名！"), txtName);
  } else if (txtInputDate->text().trimmed().isEmpty()) {
    Refuse(QStringLiteral("请输入员工信息录入日期！"), txtInputDate);
  } else if (TempImgPath.isEmpty() || !runtime::isNormalFile(TempImgPath)) {
    lblReason->showHint(QStringLiteral("照片没有读出，或者已经用于一次保存。") + onlyOnce());
    Refuse(QStringLiteral("员工头像不存在！"), btnNext->isEnabled() ? btnNext : btnSave);
  } else if (txtEmpNum->text().trimmed().isEmpty()) {
    Refuse(QStringLiteral("请输入员工编号！"), txtEmpNum);
  } else {
    return CheckNumber();
  }
  return false;
}

bool frimEmpImport::CheckNumber() {
  clsEmployee holder;
  holder.setENUMBER(txtEmpNum->text().trimmed());
  const int result = holder.LoadByENUMBER();
  if (result == clsEmployee::Failed) {
    lblReason->showHint(holder.lastFailure());
    Refuse(QStringLiteral("数据库操作异常！"), txtEmpNum);
  } else if (result == clsEmployee::Found) {
    Refuse(QStringLiteral("员工编号已存在，请使用未使用的员工编号！"), txtEmpNum);
    txtEmpNum->selectAll();
  }
  return result == clsEmployee::NotFound;
}

std::optional<QDateTime> frimEmpImport::EnterDate() {
  QString failure;
  auto date = attempt(failure, std::optional<QDateTime>(),
                      [this] { return std::optional(runtime::toDateTime(txtInputDate->text().trimmed())); });
  if (!date) {
    Refuse(QStringLiteral("录入日期无法识别，请按“2026-11-15”的样子输入！"), txtInputDate);
    txtInputDate->selectAll();
  }
  return date;
}

int frimEmpImport::SaveEmployee() {
  if (!CheckInput()) return Refused;
  // Before the employee object, which deletes the photo when it goes: a date can be corrected.
  const auto date = EnterDate();
  if (!date) return Refused;
  clsEmployee employee;
  employee.setENAME(txtName->text().trimmed());
  employee.setdid(GetSelectedDeptID());
  employee.setENTERDATE(*date);
  employee.setENUMBER(txtEmpNum->text().trimmed());
  employee.setHeadImg(TempImgPath);
  return Store(employee) ? Saved : NotSaved;
}

bool frimEmpImport::Store(clsEmployee& employee) {
  m_failure.clear();
  if (!employee.UpdateEBarCode()) m_failure = employee.lastFailure();
  // Without a barcode nothing is added, and no reason is given.
  if (employee.Add()) return true;
  if (m_failure.isEmpty()) m_failure = employee.lastFailure();
  if (m_failure.isEmpty()) m_failure = SelectedDept().lastFailure();
  if (m_failure.isEmpty()) m_failure = QStringLiteral("没有这个部门");
  return false;
}

void frimEmpImport::btnSave_Click() {
  const int result = SaveEmployee();
  if (result == NotSaved) {
    lblReason->showHint(m_failure + u'。' + onlyOnce());
    dialogs::MsgBox(QStringLiteral("员工信息保存失败！"), dialogs::Exclamation, warning());
  } else if (result == Saved) {
    lblReason->showHint({});
    dialogs::MsgBox(QStringLiteral("员工信息已成功导入！"), dialogs::Information, QStringLiteral("消息"));
    btnSave->setEnabled(false);
    if (btnNext->isEnabled()) btnNext->setFocus();
  }
}

void frimEmpImport::btnNext_Click() {
  std::ignore = ShowNext();
}
