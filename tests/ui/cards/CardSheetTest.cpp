#include <gtest/gtest.h>

#include <QTest>

#include "support/ScriptedBoxes.h"
#include "ui/cards/frmCardSheet.h"

namespace {

class CardSheetDialog : public ::testing::Test {
 protected:
  explicit CardSheetDialog() { dialog.show(); }

  template <typename Widget>
  [[nodiscard]] Widget& child(const char* name) const {
    return *dialog.findChild<Widget*>(QLatin1String(name));
  }
  [[nodiscard]] QString label(const char* name) const { return child<QLabel>(name).text(); }
  [[nodiscard]] SheetPicture& picture() const { return child<SheetPicture>("picSheet"); }
  [[nodiscard]] QSpinBox& start() const { return child<QSpinBox>("txtStart"); }
  /// The colour that fills a place of the picture.
  [[nodiscard]] QRgb fillOf(int place) const {
    const QPixmap pixels = picture().grab();
    return pixels.toImage().pixel(picture().placeBox(place).topLeft().toPoint() + QPoint(5, 5));
  }

  support::ScriptedBoxes boxes;
  frmCardSheet dialog{CardSheet(), 3};
};

}  // namespace

TEST_F(CardSheetDialog, OpensOnWhatItIsGiven) {
  CardSheet given;
  given.start = 4;
  given.cutMarks = false;
  given.right = -15;
  given.down = 100;
  given.order = CardSheet::Order::ByNumber;
  const frmCardSheet other(given, 6);
  const CardSheet chosen = other.Sheet();
  EXPECT_EQ(chosen.start, 4);
  EXPECT_FALSE(chosen.cutMarks);
  EXPECT_EQ(chosen.right, -15);
  EXPECT_EQ(chosen.down, 100);
  EXPECT_EQ(chosen.order, CardSheet::Order::ByNumber);
  EXPECT_EQ(other.findChild<QLabel*>(QStringLiteral("lblSheets"))->text(),
            QStringLiteral("6 张签到卡，用 2 张 A4 纸"));
  EXPECT_EQ(dialog.Sheet().order, CardSheet::Order::AsListed);
}

TEST_F(CardSheetDialog, SaysHowManySheetsAndWhatRemainsAroundTheCards) {
  EXPECT_EQ(label("lblSheets"), QStringLiteral("3 张签到卡，用 1 张 A4 纸"));
  EXPECT_EQ(label("lblMargins"), QStringLiteral("卡片到纸边：左 20.0，右 20.0，上 26.0，下 26.0 毫米"));
  start().setValue(7);
  EXPECT_EQ(label("lblSheets"), QStringLiteral("3 张签到卡，用 2 张 A4 纸"));
  auto& right = child<QDoubleSpinBox>("txtRight");
  right.setValue(-20);
  EXPECT_EQ(right.value(), -10);
  child<QDoubleSpinBox>("txtDown").setValue(2.5);
  EXPECT_EQ(label("lblMargins"), QStringLiteral("卡片到纸边：左 10.0，右 30.0，上 28.5，下 23.5 毫米"));
  EXPECT_EQ(dialog.Sheet().right, -100);
  EXPECT_EQ(dialog.Sheet().down, 25);
}

TEST_F(CardSheetDialog, ThePictureShowsWhichPlacesAreFilled) {
  start().setValue(3);
  EXPECT_EQ(fillOf(1), fillOf(2));
  EXPECT_EQ(fillOf(3), fillOf(5));
  EXPECT_EQ(fillOf(6), fillOf(8));
  EXPECT_NE(fillOf(2), fillOf(3)) << "used before";
  EXPECT_NE(fillOf(5), fillOf(6)) << "still free afterwards";
  EXPECT_NE(fillOf(2), fillOf(6));
  const QImage marked = picture().grab().toImage();
  child<QCheckBox>("chkCutMarks").setChecked(false);
  EXPECT_NE(picture().grab().toImage(), marked);
}

TEST_F(CardSheetDialog, AClickOnThePictureChoosesTheStart) {
  QTest::mouseClick(&picture(), Qt::LeftButton, {}, picture().placeBox(6).center().toPoint());
  EXPECT_EQ(start().value(), 6);
  QTest::mouseClick(&picture(), Qt::LeftButton, {}, QPoint(1, 1));
  QTest::mouseClick(&picture(), Qt::RightButton, {}, picture().placeBox(2).center().toPoint());
  EXPECT_EQ(start().value(), 6);
}

TEST_F(CardSheetDialog, TheArrowKeysMoveTheStartAboutThePicture) {
  const auto press = [this](Qt::Key key) {
    QTest::keyClick(&picture(), key);
    return start().value();
  };
  EXPECT_EQ(press(Qt::Key_Up), 1);
  EXPECT_EQ(press(Qt::Key_Left), 1);
  EXPECT_EQ(press(Qt::Key_Down), 3);
  EXPECT_EQ(press(Qt::Key_Right), 4);
  EXPECT_EQ(press(Qt::Key_End), 8);
  EXPECT_EQ(press(Qt::Key_Down), 8);
  EXPECT_EQ(press(Qt::Key_Right), 8);
  EXPECT_EQ(press(Qt::Key_Up), 6);
  EXPECT_EQ(press(Qt::Key_Home), 1);
  QTest::keyClick(&picture(), Qt::Key_Return);
  EXPECT_EQ(dialog.result(), QDialog::Accepted);
}
