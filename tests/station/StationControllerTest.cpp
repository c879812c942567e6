#include <gtest/gtest.h>

#include <QFile>

#include "StationHome.h"
#include "station/StationController.h"

namespace {

using Kind = StationAnswer::Kind;

class Station : public StationHome {
 protected:
  StationController station;
};

TEST_F(Station, ADayGoesFromSignInToSignOut) {
  station.look();
  const StationAnswer in = station.scan(first);
  EXPECT_EQ(in.kind, Kind::SignedIn);
  EXPECT_EQ(in.text, QStringLiteral("签到成功"));
  EXPECT_EQ(in.name, QStringLiteral("钱进"));
  EXPECT_EQ(in.department, QStringLiteral("财务部"));
  EXPECT_EQ(in.moment, monday(8));
  EXPECT_NE(in.photo, nullptr);
  EXPECT_EQ(in.failure, QString());
  EXPECT_EQ(stored(QStringLiteral("ENTERTIME")), QStringLiteral("2026-11-16 08:00:00"));
  EXPECT_FALSE(QFile::exists(home.file(QStringLiteral("A001.jpg"))));

  clock.set(monday(8, 0, 15));
  const StationAnswer again = station.scan(first);
  EXPECT_EQ(again.kind, Kind::RepeatedScan);
  EXPECT_EQ(again.text, QStringLiteral("请勿重复刷卡（还需 45 秒）"));
  clock.set(monday(17));
  EXPECT_EQ(station.scan(first).kind, Kind::SignedOut);
  EXPECT_EQ(station.scan(first).kind, Kind::AlreadySignedOut);
  EXPECT_EQ(station.figures().count(), 1) << "who signs out is not counted again";
}

TEST_F(Station, ACardThatIsNobodysIsShownAsItWasRead) {
  for (const QString& code : {QStringLiteral("300000000000003"), QStringLiteral("12'5")}) {
    const StationAnswer answer = station.scan(code);
    EXPECT_EQ(answer.kind, Kind::UnknownCard);
    EXPECT_EQ(answer.text, QStringLiteral("未登记的卡号：") + code);
  }
}

TEST_F(Station, OnlyAWholeCardIsLookedUp) {
  home.insertEmployee(QStringLiteral("A003"), QStringLiteral("李四"), 1, support::TestHome::tinyJpeg(),
                      QStringLiteral("77"));
  EXPECT_EQ(station.scan(QStringLiteral("77")).kind, Kind::UnknownCard);
}

TEST_F(Station, WithoutAPhotoOneSignsInAllTheSame) {
  const StationAnswer withoutPhoto = station.scan(second);
  EXPECT_EQ(withoutPhoto.kind, Kind::SignedIn);
  EXPECT_EQ(withoutPhoto.photo, nullptr);
  EXPECT_TRUE(withoutPhoto.failure.contains(QStringLiteral("A002")));

  const QString damaged = QStringLiteral("400000000000004");
  home.insertEmployee(QStringLiteral("A004"), QStringLiteral("周到"), 1, "no picture", damaged);
  EXPECT_EQ(station.scan(damaged).kind, Kind::SignedIn);
  EXPECT_EQ(storedRows(), QStringLiteral("2"));
}

TEST_F(Station, AMissingDatabaseIsTroubleUntilItIsBack) {
  station.look();
  takeDatabaseAway();
  const StationAnswer answer = station.scan(first);
  EXPECT_EQ(answer.kind, Kind::Busy);
  EXPECT_EQ(answer.text, QStringLiteral("正忙，请再刷一次"));
  EXPECT_TRUE(answer.failure.contains(home.databaseFile()));
  EXPECT_TRUE(station.isDatabaseMissing());

  bringDatabaseBack();
  EXPECT_EQ(storedRows(), QStringLiteral("0")) << "no scan is stored later";
  home.execute(
      QStringLiteral("INSERT INTO Presence(ENUMBER, ENTERTIME) VALUES('A002', '2026-11-16 07:00:00')"));
  station.look();
  EXPECT_FALSE(station.isDatabaseMissing());
  EXPECT_EQ(station.trouble(), QString());
  EXPECT_EQ(station.figures().count(), 1);
  EXPECT_EQ(station.scan(first).kind, Kind::SignedIn);
}

TEST_F(Station, AHeldDatabaseIsBusyAndNothingIsQueued) {
  station.look();
  const auto other = home.connect();
  other->BeginTrans();
  const StationAnswer answer = station.scan(first);
  EXPECT_EQ(answer.kind, Kind::Busy);
  EXPECT_EQ(answer.text, QStringLiteral("正忙，请再刷一次"));
  EXPECT_NE(answer.failure, QString());
  other->RollbackTrans();
  EXPECT_EQ(storedRows(), QStringLiteral("0"));
  EXPECT_EQ(station.figures().count(), 0);
  EXPECT_EQ(station.scan(first).kind, Kind::SignedIn);
}

TEST_F(Station, WhatItCannotStoreForAnotherReasonItSaysSo) {
  home.execute(QStringLiteral("DROP TABLE Presence"));
  const StationAnswer answer = station.scan(first);
  EXPECT_EQ(answer.kind, Kind::Failed);
  EXPECT_EQ(answer.text, QStringLiteral("记录失败，请联系管理员"));
  EXPECT_NE(answer.failure, QString());
}

TEST_F(Station, NoSignInGoesIntoAFileThatWasExchanged) {
  station.look();
  ASSERT_TRUE(QFile::copy(home.databaseFile(), awayFile()));
  ASSERT_TRUE(QFile::remove(home.databaseFile()));
  bringDatabaseBack();
  EXPECT_NE(station.scan(first).kind, Kind::SignedIn);
  EXPECT_EQ(station.scan(first).kind, Kind::SignedIn);
  EXPECT_EQ(storedRows(), QStringLiteral("1"));
}

TEST_F(Station, AClockBeforeTheLatestSignInWarnsAndDoesNotStop) {
  home.execute(
      QStringLiteral("INSERT INTO Presence(ENUMBER, ENTERTIME) VALUES('A002', '2026-11-16 08:00:01')"));
  station.look();
  EXPECT_TRUE(station.clockIsBehind());
  EXPECT_EQ(station.scan(first).kind, Kind::SignedIn);
  EXPECT_TRUE(station.clockIsBehind());
  clock.set(monday(8, 0, 1));
  EXPECT_FALSE(station.clockIsBehind());
}

TEST_F(Station, OthersSignInsAreCountedWithinAMinute) {
  station.look();
  home.execute(
      QStringLiteral("INSERT INTO Presence(ENUMBER, ENTERTIME) VALUES('A002', '2026-11-16 07:00:00')"));
  for (int seconds = 1; seconds < 60; ++seconds) station.look();
  EXPECT_EQ(station.figures().count(), 0) << "the database is asked now and then only";
  station.look();
  EXPECT_EQ(station.figures().count(), 1);
}

TEST_F(Station, TheDayChangesAfterTheSecondOfMidnight) {
  clock.set(monday(23, 59, 59));
  station.look();
  EXPECT_EQ(station.scan(first).kind, Kind::SignedIn);
  clock.set(monday(0).addDays(1).addMSecs(400));
  station.look();
  EXPECT_EQ(station.figures().count(), 1);
  clock.set(monday(0, 0, 1).addDays(1));
  station.look();
  EXPECT_EQ(station.figures().count(), 0);
}

TEST_F(Station, AScanAtMidnightWaitsForTheNextSecond) {
  clock.set(monday(0));
  StationController patient{
      SignIn([this](std::chrono::milliseconds time) { clock.set(clock.now().addMSecs(time.count())); })};
  EXPECT_EQ(patient.scan(first).kind, Kind::SignedIn);
  EXPECT_EQ(stored(QStringLiteral("ENTERTIME")), QStringLiteral("2026-11-16 00:00:01"));
}

}  // namespace
