#include <gtest/gtest.h>

#include <QFile>
#include <QImage>

#include "../../graphics/DarkPixels.h"
#include "../../graphics/PictureBytes.h"
#include "printing/clsLogo.h"
#include "support/Files.h"
#include "support/ScriptedBoxes.h"
#include "support/TestHome.h"
#include "ui/cards/frmCardSet.h"

namespace {

class CardSet : public ::testing::Test {
 protected:
  static report::Control label(const frmCardSet& form, const char* name) {
    return dynamic_cast<CardText&>(*form.findChild<QWidget*>(QLatin1String(name))).label();
  }
  static QString text(const frmCardSet& form, const char* name) {
    return form.findChild<QLabel*>(QLatin1String(name))->text();
  }
  static clsTextDspStyle stored(const char* group) {
    clsTextDspStyle style;
    style.InitConfigGroupName(QLatin1String(group));
    return style;
  }
  [[nodiscard]] QString picked(const char* name, const QByteArray& bytes) const {
    QString path = elsewhere.filePath(QString::fromUtf8(name));
    support::writeFile(path, bytes);
    return path;
  }
  /// Chooses the file; `message` is what the box then says, empty for no box.
  void chooseLogo(frmCardSet& form, const QString& path, const QString& message = {}) {
    boxes.expectFile({path});
    if (!message.isEmpty()) boxes.expectMessage(message);
    form.btnUnitLogo_Click();
  }

  support::TestHome home;
  support::ScriptedBoxes boxes;
  QTemporaryDir elsewhere;
};

}  // namespace

TEST_F(CardSet, ATextIsTrimmedStoredAndShownAndABlankOneIsNot) {
  frmCardSet form;
  boxes.expectInput(QStringLiteral("  青禾学校 "));
  form.btnUnitName_Click();
  EXPECT_EQ(boxes.inputs()[0].prompt, QStringLiteral("请输入签到卡显示的单位名称："));
  for (const std::optional<QString>& answer :
       {std::optional<QString>(QStringLiteral("   ")), std::optional<QString>()}) {
    boxes.expectInput(answer);
    form.btnUnitName_Click();
  }
  EXPECT_EQ(label(form, "lblUnit").Caption, QStringLiteral("青禾学校"));
  EXPECT_EQ(stored("UNIT").GetName(), QStringLiteral("青禾学校"));
  EXPECT_EQ(label(frmCardSet(), "lblUnit"), label(form, "lblUnit"));
}

TEST_F(CardSet, FontSizesAreWholePointsHalvesToTheEvenOnes) {
  frmCardSet form;
  boxes.expectFont(dialogs::FontBox{QStringLiteral("楷体"), 10.5, true, false});
  form.btnMemoFont_Click();
  EXPECT_EQ(stored("MEMO").GetSize(), QStringLiteral("10"));
  boxes.expectFont(dialogs::FontBox{QString(), 11.5, false, true});
  form.btnMemoFont_Click();
  EXPECT_EQ(stored("MEMO").GetSize(), QStringLiteral("12"));
  boxes.expectFont(dialogs::FontBox{QString(), 0.2, false, true});
  form.btnMemoFont_Click();
  boxes.expectFont(std::nullopt);
  form.btnMemoFont_Click();
  const auto shown = label(form, "lblMemo").Font;
  EXPECT_EQ(shown, (graphics::FontDescription{QStringLiteral("楷体"), 12, false, true}));
}

TEST_F(CardSet, ACancelledFontBoxStoresTheStyleThatItWasOpenedWith) {
  frmCardSet form;
  boxes.expectFont(std::nullopt);
  form.btnUnitFont_Click();
  const QString settings =
      QString::fromLatin1(support::contentOf(home.file(QStringLiteral("attendance.ini"))));
  EXPECT_TRUE(settings.contains(QStringLiteral("DSPSIZE=14")) &&
              settings.contains(QStringLiteral("DSPBOLD=0")) &&
              settings.contains(QStringLiteral("DSPITALIC=0")));
  EXPECT_FALSE(settings.contains(QStringLiteral("DSPFONT")));

  clsTextDspStyle style = stored("UNIT");
  ASSERT_TRUE(style.SetFont(QStringLiteral("楷体")) && style.SetSize(QStringLiteral("8.5")) &&
              style.SetBold(true));
  boxes.expectFont(std::nullopt);
  form.btnUnitFont_Click();
  EXPECT_EQ(style.GetFont(), QStringLiteral("楷体"));
  EXPECT_EQ(style.GetSize(), QStringLiteral("8.5"));
  EXPECT_TRUE(style.GetBold() && !style.GetItalic());
  EXPECT_EQ(label(form, "lblUnit").Font,
            (graphics::FontDescription{QStringLiteral("楷体"), 8.5, true, false}));
}

TEST_F(CardSet, TheCardOnTheScreenHasEverythingWhereItIsPrinted) {
  frmCardSet form;
  boxes.expectInput(QStringLiteral("青禾实验学校"));
  form.btnUnitName_Click();
  boxes.expectInput(QStringLiteral("memo"));
  form.btnMemoText_Click();
  auto* face = form.findChild<QLabel*>(QStringLiteral("imgCard"))->parentWidget();
  const QImage shown = face->grab().toImage();
  // The frame's lines are drawn whole, so the picture is a little larger than the card.
  const double scale = shown.width() / (card::size.width() + 30.0);
  const auto darkIn = [&](const QRectF& box) {
    const QRectF moved = box.translated(15, 15);
    return darkPixels(shown, QRectF(moved.topLeft() * scale, moved.size() * scale).toRect());
  };
  for (const report::Control& control : card::design().Controls) {
    if (control.Kind == report::ControlKind::Image) continue;
    EXPECT_GT(darkIn(control.rect()), 0) << control.Name.toStdString();
  }
  EXPECT_EQ(darkIn({300, 800, 4000, 150}), 0) << "between unit line and photo";
}

TEST_F(CardSet, ColoursAreKeptByGroup) {
  frmCardSet form;
  boxes.expectColor(dialogs::ColorBox{255});
  form.btnUnitColor_Click();
  boxes.expectColor(dialogs::ColorBox{-1});
  form.btnMemoColor_Click();
  EXPECT_EQ(label(form, "lblUnit").ForeColor, 255);
  EXPECT_EQ(stored("MEMO").GetColor(), -1);
  EXPECT_FALSE(form.grab().isNull());
}

TEST_F(CardSet, ALogoIsCopiedIntoTheProgramDirectory) {
  frmCardSet form;
  const QByteArray bytes = pictureBytes("png", {40, 40});
  const QString path = picked("校徽.bmp", bytes);
  chooseLogo(form, path);
  EXPECT_EQ(clsLogo().GetPath(), home.file(QStringLiteral("校徽.bmp")));
  EXPECT_EQ(support::contentOf(home.file(QStringLiteral("校徽.bmp"))), bytes);
  EXPECT_EQ(boxes.files()[0].flags, dialogs::FileMustExist);

  chooseLogo(form, home.file(QStringLiteral("校徽.bmp")));
  EXPECT_EQ(support::contentOf(home.file(QStringLiteral("校徽.bmp"))), bytes) << "onto itself it stays whole";
  EXPECT_TRUE(text(form, "lblLogoWarning").isEmpty());
  home.insertEmployee(QStringLiteral("A001"), QStringLiteral("张三"), 1, support::TestHome::tinyJpeg());
  for (const char* name : {"TEMP.jpg", "a001.jpg"}) {
    chooseLogo(form, picked(name, bytes));
    EXPECT_FALSE(text(form, "lblLogoWarning").isEmpty()) << name;
  }
}

TEST_F(CardSet, AFileThatCannotBeALogoChangesNothing) {
  frmCardSet form;
  const QByteArray settings = support::contentOf(home.file(QStringLiteral("attendance.ini")));
  QByteArray cut = pictureBytes("png", {400, 400});
  cut.truncate(60);
  for (const QString& path : {picked("text.bmp", "text"), picked("empty.gif", {}), picked("cut.jpg", cut)}) {
    chooseLogo(form, path, path.section(u'/', -1));
  }
  for (const char* name : {"ATTENDANCE.ini", "vorlent.dat", "vorlent.dat-journal", "help.chm"}) {
    chooseLogo(form, picked(name, pictureBytes("png", {40, 40})), QStringLiteral("程序自己的文件名"));
  }
  EXPECT_EQ(support::contentOf(home.file(QStringLiteral("attendance.ini"))), settings);
  EXPECT_FALSE(QFile::exists(home.file(QStringLiteral("text.bmp"))));
}

TEST_F(CardSet, SaysWhatCouldNotBeStored) {
  frmCardSet form;
  for (const QString& refused : {QStringLiteral("学校😀"), QString(5000, u'长')}) {
    boxes.expectInput(refused);
    form.btnMemoText_Click();
    EXPECT_TRUE(text(form, "lblFailure").contains(QStringLiteral("未能保存")))
        << refused.left(5).toStdString();
  }
  EXPECT_EQ(label(form, "lblMemo").Caption, stored("MEMO").GetName()) << "the card prints what is stored";
}

TEST_F(CardSet, ALogoWhosePathCannotBeStoredLeavesTheFormerOne) {
  frmCardSet form;
  const QByteArray picture = pictureBytes("png", {40, 40});
  chooseLogo(form, picked("校徽.bmp", picture));
  EXPECT_TRUE(text(form, "lblFailure").isEmpty());
  const QByteArray tooLong(240, 'l');
  for (const QByteArray& name : {QByteArray("☺.bmp"), QByteArray(tooLong + ".bmp")}) {
    chooseLogo(form, picked(name, picture));
    EXPECT_TRUE(text(form, "lblFailure").contains(QStringLiteral("未能保存"))) << name.constData();
    EXPECT_EQ(clsLogo().GetPath(), home.file(QStringLiteral("校徽.bmp"))) << "the former logo stays";
  }
}
