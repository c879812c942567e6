#include <gtest/gtest.h>

#include <QDir>
#include <QPointF>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>

#include "cli/Running.h"
#include "printing/clsLogo.h"
#include "support/Files.h"
#include "support/TestHome.h"

namespace {

using support::contentOf;

class Cards : public testing::Test {
 protected:
  Cards() {
    home.execute(QStringLiteral("INSERT INTO Dept(DNAME) VALUES('教务处')"));
    for (const QString& number : {QStringLiteral("A1"), QStringLiteral("A2")}) {
      home.insertEmployee(number, QStringLiteral("张三"), 1, support::TestHome::tinyJpeg(),
                          QStringLiteral("12345678901234") + number.back());
    }
  }

  [[nodiscard]] Outcome cards(const QStringList& which, const QString& out) const {
    return runIn(home.path(),
                 QStringList{QStringLiteral("cards")} + which + QStringList{QStringLiteral("--out"), out});
  }
  [[nodiscard]] QString pdf() const { return home.file(QStringLiteral("cards.pdf")); }

  const QStringList all{QStringLiteral("--all")};
  support::TestHome home;
};

TEST_F(Cards, AllAndSomeBecomeAPdfAndNoPhotoFileStays) {
  const Outcome every = cards(all, pdf());
  EXPECT_EQ(every.code, 0) << every.err.toStdString();
  EXPECT_EQ(every.out, QStringLiteral("已写入 2 张签到卡：%1\n").arg(pdf()));
  EXPECT_EQ(every.err, QString());
  EXPECT_TRUE(contentOf(pdf()).startsWith("%PDF"));
  const Outcome some = cards({QStringLiteral("--number"), QStringLiteral("A2"), QStringLiteral("a2")}, pdf());
  EXPECT_EQ(some.out, QStringLiteral("已写入 1 张签到卡：%1\n").arg(pdf()));
  EXPECT_EQ(QDir(home.path()).entryList({QStringLiteral("*.jpg")}), QStringList());
}

/// Where the PDF has that word, points from the upper left corner of its page.
QPointF placeOf(const QString& word, const QString& pdf) {
  QProcess reader;
  reader.start(QStringLiteral("pdftotext"), {QStringLiteral("-bbox"), pdf, QStringLiteral("-")});
  EXPECT_TRUE(reader.waitForFinished(60000));
  const QRegularExpression form(QStringLiteral("xMin=\"([0-9.]+)\" yMin=\"([0-9.]+)\"[^>]*>%1<").arg(word));
  const auto match = form.match(QString::fromUtf8(reader.readAllStandardOutput()));
  EXPECT_TRUE(match.hasMatch()) << word.toStdString();
  return {match.captured(1).toDouble(), match.captured(2).toDouble()};
}

TEST_F(Cards, SheetsStartAndAreMovedAsTheOptionsSay) {
  if (QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty()) GTEST_SKIP();
  const QStringList sheet = all + QStringList{QStringLiteral("--sheet"), QStringLiteral("--cut-marks")};
  const Outcome first = cards(sheet, pdf());
  EXPECT_EQ(first.code, 0) << first.err.toStdString();
  EXPECT_EQ(first.out, QStringLiteral("已写入 2 张签到卡（1 张 A4 纸）：%1\n").arg(pdf()));
  const QPointF place1 = placeOf(QStringLiteral("A1"), pdf());
  const QPointF place2 = placeOf(QStringLiteral("A2"), pdf());
  EXPECT_NEAR(place2.x() - place1.x(), 4960 / 20.0, 0.1) << "a card and 5 mm further to the right";
  EXPECT_NEAR(place2.y(), place1.y(), 0.1);

  const Outcome moved = cards(sheet + QStringList{QStringLiteral("--start"), QStringLiteral("8"),
                                                  QStringLiteral("--offset"), QStringLiteral("-1.5,10")},
                              pdf());
  EXPECT_EQ(moved.out, QStringLiteral("已写入 2 张签到卡（2 张 A4 纸）：%1\n").arg(pdf()));
  const double millimetre = 72 / 25.4;
  const QPointF start = placeOf(QStringLiteral("A1"), pdf());
  EXPECT_NEAR(start.x() - place2.x(), -1.5 * millimetre, 0.1);
  EXPECT_NEAR(start.y() - place2.y(), 3 * 3543 / 20.0 + 10 * millimetre, 0.1);
  const QPointF next = placeOf(QStringLiteral("A2"), pdf());
  EXPECT_NEAR(next.x() - place1.x(), -1.5 * millimetre, 0.1) << "the second sheet starts at its first place";
  EXPECT_NEAR(next.y() - place1.y(), 10 * millimetre, 0.1);
}

TEST_F(Cards, APhotoThatIsNoPictureLeavesItsFrameEmptyAndIsNamed) {
  home.insertEmployee(QStringLiteral("A3"), QStringLiteral("李四"), 1, "no picture",
                      QStringLiteral("123456789012349"));
  const Outcome outcome = cards(all, pdf());
  EXPECT_EQ(outcome.code, 1);
  EXPECT_TRUE(outcome.err.contains(QLatin1String("A3"))) << outcome.err.toStdString();
  EXPECT_FALSE(outcome.err.contains(QLatin1String("A1")));
  EXPECT_TRUE(contentOf(pdf()).startsWith("%PDF"));
}

TEST_F(Cards, AnEmployeeWhosePhotoCannotBeLoadedIsNamed) {
  home.insertEmployee(QStringLiteral("A3"), QStringLiteral("李四"), 1, QByteArray());
  for (const QStringList& which : {all, QStringList{QStringLiteral("--number"), QStringLiteral("A3")}}) {
    const Outcome outcome = cards(which, pdf());
    EXPECT_EQ(outcome.code, 1);
    EXPECT_TRUE(outcome.err.contains(QLatin1String("A3"))) << outcome.err.toStdString();
    EXPECT_FALSE(QFile::exists(pdf()));
  }
}

TEST_F(Cards, TheProgramsOwnFilesAreNoOutput) {
  const QString logo = home.file(QStringLiteral("logo.png"));
  QFile(logo).open(QIODevice::WriteOnly);
  ASSERT_TRUE(clsLogo().SetPath(logo));
  const QString settings = home.file(QStringLiteral("attendance.ini"));
  const QByteArray before = contentOf(settings);
  const QString link = home.file(QStringLiteral("link.pdf"));
  ASSERT_TRUE(QFile::link(home.databaseFile(), link));
  for (const QString& own : {home.databaseFile(), link, settings, logo, home.file(QStringLiteral("A1.jpg")),
                             home.path() + QStringLiteral("/./vorlent.dat-journal")}) {
    const Outcome outcome = cards(all, own);
    EXPECT_EQ(outcome.code, 1) << own.toStdString();
    EXPECT_TRUE(outcome.err.contains(QStringLiteral("不能用作输出"))) << outcome.err.toStdString();
  }
  EXPECT_EQ(contentOf(settings), before);
  EXPECT_EQ(home.single(QStringLiteral("SELECT COUNT(*) FROM Employee")), QStringLiteral("2"));
}

}  // namespace
