#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTest>

#include "SampleReport.h"
#include "preview/ContentsPane.h"
#include "preview/Thumbnails.h"

using preview::ContentsPane;
using preview::Thumbnails;

TEST(Contents, ARowAPageWithItsNumberAndEntries) {
  const ContentsPane pane(sampleDocument(12));
  ASSERT_EQ(pane.model()->rowCount(), 12);
  EXPECT_EQ(pane.model()->index(4, 0).data().toString(), QStringLiteral("第 5 页\n5"));
}

TEST(Contents, ManyEntriesOfAPageShareLinesAndTheRestIsLeftOut) {
  const auto shown = [](int entries) {
    SampleReport report(entries);
    report.Detail.Height = 200;
    return ContentsPane(report.run()).model()->index(0, 0).data().toString();
  };
  EXPECT_EQ(shown(7), QStringLiteral("第 1 页\n1　2\n3　4\n5　6\n7"));
  EXPECT_EQ(shown(10), QStringLiteral("第 1 页\n1　2\n3　4\n5　6\n……"));
}

TEST(Contents, FollowsWithoutChoosing) {
  ContentsPane pane(sampleDocument(12));
  QSignalSpy chosen(&pane, &ContentsPane::pageChosen);
  pane.showCurrent(7);
  EXPECT_EQ(pane.currentIndex().row(), 7);
  EXPECT_TRUE(chosen.isEmpty());
  QTest::keyClick(&pane, Qt::Key_Down);
  ASSERT_EQ(chosen.count(), 1);
  EXPECT_EQ(chosen.at(0).at(0).toInt(), 8);
}

TEST(Contents, PaintsOnlyTheRowsThatAreSeen) {
  ContentsPane pane(sampleDocument(1000));
  pane.resize(200, 600);
  QSignalSpy painted(pane.model(), &QAbstractItemModel::dataChanged);
  pane.show();
  QTest::qWait(300);
  EXPECT_GE(painted.count(), 4);
  EXPECT_LE(painted.count(), 10);
  pane.showCurrent(900);
  QTest::qWait(300);
  EXPECT_LE(painted.count(), 20);
}

TEST(Thumbnails, ArePaintedLaterAtTheScreensPixelsAndKeptInBounds) {
  Thumbnails thumbnails(sampleDocument(3));
  QSignalSpy painted(&thumbnails, &Thumbnails::painted);
  EXPECT_TRUE(thumbnails.picture(1, 2).isNull());
  EXPECT_TRUE(thumbnails.picture(1, 2).isNull()) << "asked for twice, painted once";
  ASSERT_TRUE(painted.wait(1000));
  const QPixmap picture = thumbnails.picture(1, 2);
  EXPECT_EQ(picture.height(), 2 * Thumbnails::longerSide);
  EXPECT_EQ(picture.deviceIndependentSize().toSize(), thumbnails.size());
  QTest::qWait(50);
  EXPECT_EQ(painted.count(), 1);
  EXPECT_TRUE(thumbnails.picture(1, 1).isNull()) << "another screen, another picture";
}
