#include <gtest/gtest.h>

#include <QDir>

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
