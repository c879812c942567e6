#include <gtest/gtest.h>

#include "station/ScanSplitter.h"

namespace {

using Time = ScanSplitter::Time;

const QString one = QStringLiteral("012345678901234");
const QString two = QStringLiteral("112345678901234");
const QString three = QStringLiteral("212345678901234");

class Scanner : public ::testing::Test {
 protected:
  /// Types with 5 ms from key to key, and gives the codes that ended meanwhile.
  QStringList type(const QString& text) {
    QStringList codes;
    for (const QChar c : text) codes += splitter.character(c, now += Time(5));
    return codes;
  }
  QStringList typeAndEnter(const QString& text) {
    const QStringList codes = type(text);
    return codes + splitter.enter();
  }
  void wait(int milliseconds) { now += Time(milliseconds - 5); }

  ScanSplitter splitter;
  Time now{1000};
};

TEST_F(Scanner, EnterEndsAScanAndAloneIsNone) {
  EXPECT_EQ(typeAndEnter(one), QStringList{one});
  EXPECT_TRUE(splitter.enter().isEmpty());
  EXPECT_TRUE(splitter.finish().isEmpty());
}

TEST_F(Scanner, APauseOfSixtyMillisecondsEndsAWholeCard) {
  type(one);
  EXPECT_EQ(splitter.pauseNow(), Time(60));
  wait(60);
  EXPECT_EQ(type(two), QStringList{one});
  wait(59);
  EXPECT_TRUE(type(three).isEmpty());
  EXPECT_EQ(splitter.finish(), (QStringList{two, three}));
}

TEST_F(Scanner, TheRestOfACardIsWaitedForLonger) {
  for (const QString& begun : {one.left(1), one.left(14), one + two.left(7), one.left(4) + u'X'}) {
    type(begun);
    EXPECT_EQ(splitter.pauseNow(), Time(250));
    wait(249);
    EXPECT_TRUE(type(one.mid(7)).isEmpty());
    EXPECT_EQ(splitter.finish().join(QString()), begun + one.mid(7));
    type(begun);
    wait(250);
    EXPECT_EQ(type(two).join(QString()), begun);
    EXPECT_EQ(splitter.finish(), QStringList{two});
  }
}

TEST_F(Scanner, TwoOrThreeCardsInOneAreToldApart) {
  EXPECT_EQ(typeAndEnter(one + two), (QStringList{one, two}));
  type(one + two + three);
  EXPECT_EQ(splitter.finish(), (QStringList{one, two, three}));
}

TEST_F(Scanner, AnythingElseIsOneCodeAsItWasRead) {
  for (const QString& read :
       {one.left(14), one + u'5', one + two + three + one, one.left(14) + u'X', one + two.left(14) + u'-',
        QStringLiteral("O'Neil 7"), QString(15, QChar(0xFF11))}) {
    EXPECT_EQ(typeAndEnter(read), QStringList{read});
    EXPECT_FALSE(isCardCode(read));
  }
  EXPECT_TRUE(isCardCode(one));
}

TEST_F(Scanner, WhatLiesOnTheKeyboardFillsNoMemory) {
  type(QString(5000, u'7'));
  EXPECT_LE(splitter.finish().constFirst().size(), 200);
}

TEST_F(Scanner, WhileDeafItDropsWholeScansOnly) {
  type(one.left(4));
  splitter.setDeaf(true);
  EXPECT_TRUE(typeAndEnter(one.mid(4)).isEmpty());
  type(two.left(8));
  splitter.setDeaf(false);
  EXPECT_TRUE(typeAndEnter(two.mid(8)).isEmpty()) << "half a scan is no card";
  EXPECT_EQ(typeAndEnter(three), QStringList{three});

  splitter.setDeaf(true);
  type(one.left(8));
  splitter.setDeaf(false);
  type(one.mid(8));
  wait(60);
  EXPECT_TRUE(type(three).isEmpty());
  EXPECT_EQ(splitter.finish(), QStringList{three});
}

TEST_F(Scanner, TheSystemsCountOfMillisecondsMayStartAgain) {
  type(one);
  now = Time(0);
  EXPECT_EQ(type(two), QStringList{one});
}

}  // namespace
