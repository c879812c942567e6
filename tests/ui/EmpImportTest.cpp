#include <QApplication>
#include <QBuffer>
#include <QComboBox>
#include <QGroupBox>
#include <QImage>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "MainWindowTest.h"
#include "ado/Recordset.h"
#include "support/Files.h"
#include "ui/frimEmpImport.h"

namespace {

const QString incomplete = QStringLiteral("此文件未能完整读取，请核对后再保存");
const QString numberTaken = QStringLiteral("员工编号已存在，请使用未使用的员工编号！");
const QString noPhoto = QStringLiteral("员工头像不存在！");
const QString notSaved = QStringLiteral("员工信息保存失败！");
const QString saved = QStringLiteral("员工信息已成功导入！");

/// A picture twice as wide as high.
QByteArray widePhoto() {
  QImage image(80, 40, QImage::Format_RGB32);
  image.fill(Qt::red);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, "PNG");
  return bytes;
}

/// A photo whose head says that it has 60,000 pixels a side.
QByteArray hugePhoto() {
  return support::TestHome::tinyJpeg().replace(QByteArray::fromHex("0800080008"),
                                               QByteArray::fromHex("08ea60ea60"));
}

class EmpImport : public MainWindow {
 protected:
  /// Writes the file of an employee without number; a Null is not written.
  [[nodiscard]] QString employeeFile(const QString& name, const QVariant& department = 2,
                                     const QVariant& photo = widePhoto()) const {
    ado::Recordset row;
    row.Open(QStringLiteral("select * from employee where 1 = 0"), home.connect(), ado::CursorType::Keyset,
             ado::LockType::Optimistic);
    row.AddNew();
    row.Fields(QStringLiteral("ENAME")).setValue(name);
    row.Fields(QStringLiteral("DID")).setValue(department);
    row.Fields(QStringLiteral("ENTERDATE")).setValue(QDate(2026, 11, 15).startOfDay());
    row.Fields(QStringLiteral("HEADIMG")).setValue(photo);
    QString path = home.file(name + QStringLiteral(".xml"));
    row.Save(path, ado::PersistFormat::Xml);
    return path;
  }

  void open(const QStringList& files) {
    dialog.SetFileList(files);
    dialog.Form_Load();
    dialog.show();
  }
  template <typename Control>
  Control& child(const char* name) const {
    return *dialog.findChild<Control*>(QLatin1String(name));
  }
  void type(const char* box, const QString& text) const { child<QLineEdit>(box).setText(text); }
  [[nodiscard]] QString text(const char* box) const { return child<QLineEdit>(box).text(); }
  [[nodiscard]] QString hint(const char* label) const { return child<QLabel>(label).text(); }
  [[nodiscard]] QString department() const { return child<QComboBox>("cbDept").currentText(); }
  [[nodiscard]] bool enabled(const char* button) const { return child<QPushButton>(button).isEnabled(); }
  [[nodiscard]] bool photoIsThere() const { return QFile::exists(home.file(QStringLiteral("temp.jpg"))); }
  void next() const { child<QPushButton>("btnNext").click(); }

  /// Presses the button that saves, which must lead to exactly that message.
  void save(const QString& answer, const QString& title = QStringLiteral("警告"), int style = 48) {
    boxes.expectMessage(answer);
    const std::size_t before = boxes.messages().size();
    child<QPushButton>("btnSave").click();
    ASSERT_EQ(boxes.messages().size(), before + 1) << answer.toStdString();
    EXPECT_EQ(boxes.messages().back().text, answer);
    EXPECT_EQ(boxes.messages().back().title, title);
    EXPECT_EQ(boxes.messages().back().style, style);
  }
  void saveAs(const QString& number) {
    type("txtEmpNum", number);
    save(saved, QStringLiteral("消息"), 64);
  }

  frimEmpImport dialog;
};

}  // namespace

TEST_F(EmpImport, ShowsTheFilesOneAfterTheOtherAndSavesEachOnce) {
  open({employeeFile(QStringLiteral("王芳")), employeeFile(QStringLiteral("李强"), 1)});
  EXPECT_EQ(text("txtName") + department() + text("txtInputDate"), QStringLiteral("王芳人事部2026-11-15"));
  EXPECT_EQ(text("txtFile") + hint("lblProcess"), QStringLiteral("王芳.xml1/2"));
  EXPECT_EQ(hint("lblFileNote"), QString());
  const QSize shown = child<QLabel>("imgHeader").pixmap(Qt::ReturnByValue).size();
  EXPECT_EQ(shown.width(), 2 * shown.height()) << "the photo keeps its proportions";

  saveAs(QStringLiteral("  B001 "));
  EXPECT_FALSE(enabled("btnSave"));
  EXPECT_FALSE(photoIsThere());
  EXPECT_EQ(home.single(QStringLiteral("SELECT ENAME || DID || ENTERDATE || length(EBARCODE) FROM Employee "
                                       "WHERE ENUMBER = 'B001'")),
            QStringLiteral("王芳22026-11-1515"));
  EXPECT_EQ(home.single(QStringLiteral("SELECT lower(hex(HEADIMG)) FROM Employee WHERE ENUMBER = 'B001'")),
            QString::fromLatin1(widePhoto().toHex()));

  next();
  EXPECT_EQ(text("txtName") + department() + text("txtEmpNum"), QStringLiteral("李强财务部"));
  EXPECT_EQ(child<QProgressBar>("pbWorking").value(), child<QProgressBar>("pbWorking").maximum());
  EXPECT_TRUE(enabled("btnSave"));
  EXPECT_FALSE(enabled("btnNext"));
  dialog.close();
  EXPECT_FALSE(photoIsThere());
  EXPECT_TRUE(QFile::exists(home.file(QStringLiteral("李强.xml")))) << "the user's file stays";
}

TEST_F(EmpImport, RefusesInOrderAndKeepsThePhotoForTheNextTry) {
  open({employeeFile(QStringLiteral("王芳"))});
  type("txtName", QStringLiteral(" "));
  type("txtInputDate", {});
  save(QStringLiteral("请输入员工姓名！"));
  type("txtName", QStringLiteral("王芳"));
  save(QStringLiteral("请输入员工信息录入日期！"));
  type("txtInputDate", QStringLiteral("2026-13-41"));
  save(QStringLiteral("请输入员工编号！"));
  type("txtEmpNum", QStringLiteral("A001"));
  save(numberTaken);
  type("txtEmpNum", QStringLiteral("B'1"));
  save(QStringLiteral("数据库操作异常！"));
  type("txtEmpNum", QStringLiteral("B001"));
  save(QStringLiteral("录入日期无法识别，请按“2026-11-15”的样子输入！"));
  EXPECT_TRUE(photoIsThere());
  EXPECT_TRUE(dialog.isVisible());
  type("txtInputDate", QStringLiteral("2026年1月5日"));
  saveAs(QStringLiteral("B001"));
  EXPECT_EQ(home.single(QStringLiteral("SELECT count(*) FROM Employee")), QStringLiteral("6"));
}

TEST_F(EmpImport, AFailedSaveUsesThePhotoUp) {
  open({employeeFile(QStringLiteral("王芳"), 99)});
  EXPECT_EQ(department(), QString()) << "the list alone chooses nothing";
  EXPECT_TRUE(hint("lblDeptHint").contains(QStringLiteral("编号 99")));
  child<QComboBox>("cbDept").setCurrentText(QStringLiteral("没有的部门"));
  EXPECT_TRUE(hint("lblDeptHint").contains(QStringLiteral("没有这个部门")));
  type("txtEmpNum", QStringLiteral("B001"));
  save(notSaved);
  EXPECT_TRUE(hint("lblReason").contains(QStringLiteral("没有这个部门"))) << hint("lblReason").toStdString();
  EXPECT_FALSE(photoIsThere());
  child<QComboBox>("cbDept").setCurrentText(QStringLiteral("财务部"));
  EXPECT_EQ(hint("lblDeptHint"), QString());
  save(noPhoto);
  EXPECT_TRUE(hint("lblReason").contains(QStringLiteral("重新导入")));
  EXPECT_EQ(home.single(QStringLiteral("SELECT count(*) FROM Employee")), QStringLiteral("5"));
}

TEST_F(EmpImport, WhatCannotBeReadKeepsWhatWasShownAndIsNoted) {
  const QString broken = home.file(QStringLiteral("broken.xml"));
  support::writeFile(broken, "<xml");
  const QString empty = home.file(QStringLiteral("empty.xml"));
  ado::Recordset none;
  none.Open(QStringLiteral("select * from employee where 1 = 0"), home.connect());
  none.Save(empty, ado::PersistFormat::Xml);
  const QStringList bad = {broken,
                           home.file(QStringLiteral("gone.xml")),
                           employeeFile(QStringLiteral("同名"), 40000),
                           employeeFile(QStringLiteral("同 名"), 2, QVariant()),
                           employeeFile(QStringLiteral("同  名"), 2, QByteArray("no picture")),
                           employeeFile(QStringLiteral("同   名"), 2, hugePhoto())};
  open(QStringList(employeeFile(QStringLiteral("同"))) + bad + QStringList(empty));
  const qint64 photo = child<QLabel>("imgHeader").pixmap(Qt::ReturnByValue).cacheKey();
  type("txtEmpNum", QStringLiteral("B001"));
  for (const QString& path : bad) {
    next();
    EXPECT_EQ(hint("lblFileNote"), incomplete) << path.toStdString();
    EXPECT_NE(hint("lblReason"), QString()) << path.toStdString();
    EXPECT_EQ(text("txtEmpNum"), QStringLiteral("B001")) << path.toStdString();
    EXPECT_EQ(department() + text("txtInputDate"), QStringLiteral("人事部2026-11-15"));
    EXPECT_EQ(child<QLabel>("imgHeader").pixmap(Qt::ReturnByValue).cacheKey(), photo);
  }
  EXPECT_TRUE(hint("lblReason").contains(QStringLiteral("60000×60000"))) << hint("lblReason").toStdString();
  next();
  EXPECT_EQ(hint("lblFileNote"), incomplete);
  EXPECT_EQ(text("txtEmpNum") + hint("lblProcess"), QStringLiteral("8/8"))
      << "a file without a row clears it";
}

TEST_F(EmpImport, HintsWhileTheNumberIsTyped) {
  execute(QStringLiteral("INSERT INTO Presence(ENUMBER, ENTERTIME) VALUES('B7', '2026-11-20 08:00:00')"));
  addEmployee(QStringLiteral("C9"), 88);
  support::writeFile(home.file(QStringLiteral("temp.jpg")), "left behind");
  open({home.file(QStringLiteral("gone.xml"))});
  EXPECT_FALSE(photoIsThere());
  const auto hintFor = [this](const QString& number) {
    type("txtEmpNum", number);
    return hint("lblNumberHint");
  };
  EXPECT_TRUE(hintFor(QStringLiteral(" B7")).contains(QStringLiteral("1 条签到记录")));
  EXPECT_TRUE(hintFor(QStringLiteral("C9")).contains(QStringLiteral("员工C9”，其部门已不存在")));
  EXPECT_TRUE(hintFor(QStringLiteral("A001")).contains(QStringLiteral("已有员工使用")));
  EXPECT_TRUE(hintFor(QStringLiteral("a/b")).contains(QStringLiteral("不能用作文件名")));
  EXPECT_TRUE(hintFor(QStringLiteral("temp")).contains(QStringLiteral("同名")));
  EXPECT_TRUE(hintFor(QStringLiteral("a'")).contains(QStringLiteral("单引号")));
  EXPECT_EQ(hintFor(QStringLiteral("B8")), QString());
}

TEST_F(EmpImport, TheMenuImportsByKeysAndShowsTheList) {
  choose("mnuEmpDsp");
  boxes.expectFile({});
  choose("mnuEmpImport");
  EXPECT_EQ(boxes.files().back().filter, QStringLiteral("XML文件|*.xml"));
  EXPECT_EQ(boxes.files().back().flags, 0x80200);

  boxes.expectFile({employeeFile(QStringLiteral("王芳"))});
  boxes.expectMessage(saved);
  QTimer::singleShot(0, &window, [] {
    auto* import = QApplication::activeModalWidget();
    ASSERT_NE(import, nullptr);
    EXPECT_EQ(import->focusWidget()->objectName(), QStringLiteral("txtEmpNum"));
    QTest::keyClicks(import->focusWidget(), QStringLiteral("B001"));
    QTest::keyClick(import, Qt::Key_Return);
    QTest::keyClick(import, Qt::Key_Escape);
    EXPECT_FALSE(import->isVisible());
    import->close();
  });
  choose("mnuPop_Append");
  EXPECT_EQ(column(1).last(), QStringLiteral("王芳"));
}
