#include <algorithm>
#include <gtest/gtest.h>
#include <set>

#include <QListWidget>
#include <QPushButton>
#include <QWindow>

#include "StationWindow.h"
#include "station/PhotoView.h"
#include "station/ResultLook.h"

namespace {

using State = frmStation::State;

TEST_F(StationWindow, AScanIsAnsweredForEyeAndEar) {
  EXPECT_EQ(form().state(), State::Ready);
  EXPECT_EQ(text("lblPrompt"), QStringLiteral("请刷卡"));
  EXPECT_EQ(text("lblClock"), QStringLiteral("08:00:00"));
  EXPECT_EQ(text("lblCount"), QStringLiteral("今日已签到 0 人"));
  scan(first);
  EXPECT_EQ(form().state(), State::Answer);
  EXPECT_EQ(text("lblName"), QStringLiteral("钱进"));
  EXPECT_EQ(text("lblDept"), QStringLiteral("财务部"));
  EXPECT_EQ(text("lblTime"), QStringLiteral("08:00:00"));
  EXPECT_EQ(text("lblResult"), QStringLiteral("签到成功"));
  EXPECT_TRUE(control<PhotoView>("imgPhoto").hasPhoto());
  EXPECT_EQ(text("lblCount"), QStringLiteral("今日已签到 1 人"));
  EXPECT_EQ(ear.heard, std::vector<sound::Signal>{lookOf(StationAnswer::Kind::SignedIn).signal});
}

TEST_F(StationWindow, TheAnswerStandsThreeSecondsUnlessTheNextScanComes) {
  scan(first);
  EXPECT_EQ(control<QTimer>("tmrAnswer").interval(), 3000);
  scan(second);
  EXPECT_EQ(text("lblName"), QStringLiteral("孙敏"));
  EXPECT_FALSE(control<PhotoView>("imgPhoto").hasPhoto()) << "the photo of the one before is gone";
  EXPECT_TRUE(text("lblNote").contains(QStringLiteral("A002")));
  scan(QStringLiteral("12-5"));
  EXPECT_EQ(text("lblResult"), QStringLiteral("未登记的卡号：12-5"));
  EXPECT_FALSE(control("lblName").isVisible());
  answerIsOver();
  EXPECT_EQ(form().state(), State::Ready);
  EXPECT_TRUE(control("lblPrompt").isVisible());
  EXPECT_EQ(text("lblNote"), QString());
}

TEST_F(StationWindow, AScanWithoutEnterEndsByItself) {
  QTest::keyClicks(&form(), first + second);
  EXPECT_EQ(form().state(), State::Ready);
  EXPECT_TRUE(QTest::qWaitFor([this] { return form().state() == State::Answer; }, 2000));
  EXPECT_EQ(storedRows(), QStringLiteral("2"));
}

TEST_F(StationWindow, TheLastTenScansStandInTheListNewestFirst) {
  for (int i = 0; i < 12; ++i) scan(QString::number(i));
  const auto& list = control<QListWidget>("lstScans");
  EXPECT_EQ(list.count(), 10);
  EXPECT_EQ(list.item(0)->text(), QStringLiteral("08:00:00  未登记的卡号：11"));
  EXPECT_EQ(list.item(9)->text(), QStringLiteral("08:00:00  未登记的卡号：2"));
}

TEST_F(StationWindow, NothingInTheWindowTakesTheKeysAway) {
  for (const QWidget* child : form().findChildren<QWidget*>()) {
    EXPECT_EQ(child->focusPolicy() & Qt::TabFocus, 0) << child->objectName().toStdString();
    EXPECT_FALSE(child->testAttribute(Qt::WA_InputMethodEnabled)) << child->objectName().toStdString();
  }
  QTest::keyClick(&form(), Qt::Key_Tab);
  QTest::mouseClick(control<QListWidget>("lstScans").viewport(), Qt::LeftButton);
  ASSERT_TRUE(QTest::qWaitForWindowActive(&form()));
  for (const QChar c : first) QTest::keyClick(form().windowHandle(), c.toLatin1());
  QTest::keyClick(form().windowHandle(), Qt::Key_Return);
  EXPECT_EQ(storedRows(), QStringLiteral("1"));
}

TEST_F(StationWindow, StartsWithoutADatabaseAndGoesOnWhenItIsThere) {
  takeDatabaseAway();
  EXPECT_EQ(form().state(), State::Trouble);
  EXPECT_EQ(text("lblPrompt"), QStringLiteral("正忙，请再刷一次"));
  EXPECT_TRUE(text("lblNote").contains(home.databaseFile()));
  EXPECT_EQ(text("lblCount"), QStringLiteral("今日已签到 — 人"));
  bringDatabaseBack();
  ring("tmrSecond");
  EXPECT_EQ(form().state(), State::Ready);
  EXPECT_EQ(text("lblPrompt"), QStringLiteral("请刷卡"));
  EXPECT_EQ(text("lblCount"), QStringLiteral("今日已签到 0 人"));
}

TEST_F(StationWindow, CardsScannedWhileItWaitedInVainAreNotTakenAfterwards) {
  form();
  const auto other = home.connect();
  other->BeginTrans();
  scan(first);
  EXPECT_EQ(text("lblResult"), QStringLiteral("正忙，请再刷一次"));
  other->RollbackTrans();
  scan(second);
  EXPECT_EQ(storedRows(), QStringLiteral("0"));
  EXPECT_TRUE(QTest::qWaitFor([this] { return !control<QTimer>("tmrDeaf").isActive(); }, 2000));
  scan(second);
  EXPECT_EQ(storedRows(), QStringLiteral("1"));
}

TEST_F(StationWindow, WarnsAsLongAsTheClockIsBehind) {
  home.execute(
      QStringLiteral("INSERT INTO Presence(ENUMBER, ENTERTIME) VALUES('A002', '2026-11-16 08:00:30')"));
  EXPECT_TRUE(form().isVisible());
  EXPECT_TRUE(control("lblWarning").isVisible());
  EXPECT_EQ(text("lblWarning"), QStringLiteral("系统时间早于最近一次签到，请校对时间"));
  clock.set(monday(8, 1));
  ring("tmrSecond");
  EXPECT_FALSE(control("lblWarning").isVisible());
}

TEST_F(StationWindow, FillsTheScreenOnDemand) {
  QTest::keyClick(&form(), Qt::Key_F11);
  EXPECT_TRUE(form().isFullScreen());
  QTest::keyClick(&form(), Qt::Key_F11);
  EXPECT_FALSE(form().isFullScreen());
}

TEST_F(StationWindow, ClosingAsksFirst) {
  boxes.expectMessage(QStringLiteral("确定要关闭吗"), dialogs::Answer::No);
  EXPECT_FALSE(form().close());
  boxes.expectMessage(QStringLiteral("确定要关闭吗"), dialogs::Answer::Yes);
  EXPECT_TRUE(form().close());
  EXPECT_EQ(boxes.messages().front().style, 36);
  EXPECT_EQ(boxes.messages().front().title, QStringLiteral("询问"));
}

/// A box whose default button meets a scan before the user answers No.
class ScannedInto : public support::ScriptedBoxes {
 public:
  explicit ScannedInto(QString code) : m_code(std::move(code)) {}
  dialogs::Answer message(const dialogs::MessageBox&) override {
    QPushButton yes;
    yes.setAutoDefault(true);
    QObject::connect(&yes, &QPushButton::clicked, [this] { isPressed = true; });
    yes.show();
    QTest::keyClicks(&yes, m_code);
    QTest::keyClick(&yes, Qt::Key_Return);
    QTest::keyClick(&yes, Qt::Key_Enter);
    return dialogs::Answer::No;
  }

  bool isPressed = false;

 private:
  QString m_code;
};

TEST_F(StationWindow, AScanIntoTheQuestionIsAScanAndNoAnswer) {
  form();
  ScannedInto question(first);
  EXPECT_FALSE(form().close());
  EXPECT_FALSE(question.isPressed);
  EXPECT_EQ(storedRows(), QStringLiteral("1"));
}

TEST(ResultLook, EachResultHasAColourAndASoundOfItsOwn) {
  using Kind = StationAnswer::Kind;
  std::set<QRgb> backgrounds;
  std::set<QRgb> texts;
  std::vector<sound::Signal> heard;
  for (const Kind kind : {Kind::SignedIn, Kind::SignedOut, Kind::AlreadySignedOut, Kind::RepeatedScan,
                          Kind::UnknownCard, Kind::Failed, Kind::Busy}) {
    const ResultLook& look = lookOf(kind);
    backgrounds.insert(look.background.rgb());
    texts.insert(look.text.rgb());
    EXPECT_EQ(std::count(heard.begin(), heard.end(), look.signal), 0);
    heard.push_back(look.signal);
  }
  EXPECT_EQ(backgrounds.size(), std::size_t{7});
  EXPECT_EQ(texts.size(), std::size_t{7});
}

}  // namespace
