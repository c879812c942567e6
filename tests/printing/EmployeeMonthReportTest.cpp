#include <array>
#include <gtest/gtest.h>

#include "DrawnShapes.h"
#include "printing/EmployeeMonthReport.h"
#include "runtime/DefaultText.h"
#include "support/FixedClock.h"
#include "support/Thrown.h"

using report::BoxPrimitive;
using report::Document;
using report::TextPrimitive;

namespace {

QDateTime at(int day, const QTime& time) {
  return {QDate(2026, 11, day), time};
}

class MonthReport : public ::testing::Test {
 protected:
  MonthReport() {
    report.schoolName = QStringLiteral("青禾实验学校");
    report.presenceYear = 2026;
    report.presenceMonth = 11;
    report.presenceList = std::make_shared<clsEmployeePresenceSet>();
  }

  std::shared_ptr<clsSingleEmployeeMonPresence> add(const QString& name) {
    return report.presenceList->Add(QString::number(report.presenceList->Count() + 1), name);
  }
  void addMany(int count) {
    for (int i = 1; i <= count; ++i) add(QStringLiteral("员工%1").arg(i));
  }
  /// An employee with both times on each of the days 1 to 31 that the month has.
  void addBusy(int year, int month) {
    const auto busy = add(QStringLiteral("全勤"));
    for (int day = 1; day <= QDate(year, month, 1).daysInMonth(); ++day) {
      const QDate date(year, month, day);
      busy->AddPresence(QDateTime(date, QTime(8, 5, 59)), QDateTime(date, QTime(17, 30)));
    }
  }

  support::FixedClock clock{QDateTime(QDate(2026, 12, 3), QTime(9, 0))};
  EmployeeMonthReport report;
};

/// Days of the grid in which the first band shows an arrival.
QList<int> daysShown(const Document& document) {
  QList<int> days;
  for (int day = 1; day <= 31; ++day) {
    if (!texts(document, QStringLiteral("lblEnter%1").arg(day)).isEmpty()) days.append(day);
  }
  return days;
}

QList<int> daysUpTo(int last) {
  QList<int> days;
  for (int day = 1; day <= last; ++day) days.append(day);
  return days;
}

}  // namespace

TEST_F(MonthReport, ShowsTheTimesOfEachDayWithoutSeconds) {
  const auto li = add(QStringLiteral("李四"));
  li->AddPresence(at(2, {8, 5, 59}), at(2, {17, 30, 1}));
  li->AddPresence(at(3, {0, 0}), runtime::zeroDateTime());
  add(QStringLiteral("空"));
  const Document document = report.run();
  EXPECT_EQ(texts(document, "lblName"), QStringList({QStringLiteral("李四"), QStringLiteral("空")}));
  EXPECT_EQ(texts(document, "lblEnter2"), QStringList(QStringLiteral("08:05")));
  EXPECT_EQ(texts(document, "lblExit2"), QStringList(QStringLiteral("17:30")));
  EXPECT_EQ(texts(document, "lblEnter3"), QStringList(QStringLiteral("00:00"))) << "midnight is a time";
  EXPECT_EQ(texts(document, "lblExit3"), QStringList());
  EXPECT_EQ(daysShown(document), QList<int>({2, 3}));
}

TEST_F(MonthReport, HeadingAndFooterStandOnEveryPage) {
  addMany(13);
  report.presenceMonth = 3;
  const Document document = report.run();
  ASSERT_EQ(document.pageCount(), 2);
  EXPECT_EQ(document.title(), QStringLiteral("青禾实验学校2026年3月员工考勤报表"));
  for (int page = 0; page < 2; ++page) {
    QString heading;
    for (const char* name : {"lblSchoolName", "Label125", "lblMonth", "Label1"}) {
      heading += texts(document, name, page).join(u'|');
    }
    EXPECT_EQ(heading, QStringLiteral("青禾实验学校校区3月员工考勤报表"));
    EXPECT_EQ(texts(document, "Label60", page), QStringList(QStringLiteral("31")));
    EXPECT_EQ(texts(document, "lblPrintDate", page), QStringList(QStringLiteral("2026-12-03")));
  }
}

TEST_F(MonthReport, DaysThatTheMonthDoesNotHaveStayEmpty) {
  struct Case {
    int year, month, days;
  };
  for (const Case& month : {Case{1850, 2, 28}, Case{9999, 12, 31}, Case{2026, 2, 28}, Case{2028, 2, 29},
                            Case{2026, 11, 30}, Case{2026, 12, 31}}) {
    EmployeeMonthReport fresh;
    fresh.presenceYear = static_cast<std::int16_t>(month.year);
    fresh.presenceMonth = static_cast<std::int16_t>(month.month);
    report.presenceList = std::make_shared<clsEmployeePresenceSet>();
    addBusy(month.year, month.month);
    fresh.presenceList = report.presenceList;
    EXPECT_EQ(daysShown(fresh.run()), daysUpTo(month.days)) << month.year << '-' << month.month;
  }
}

TEST_F(MonthReport, MoreEmployeesThanItCountsAreRefusedWithAdvice) {
  addMany(EmployeeMonthReport::mostEmployees + 1);
  const runtime::RuntimeError error = support::thrown([this] { std::ignore = report.run(); });
  EXPECT_EQ(error.number(), static_cast<int>(runtime::ErrorNumber::Overflow));
  EXPECT_TRUE(error.description().contains(QStringLiteral("32768 名")) &&
              error.description().contains(QStringLiteral("Excel")));
}

TEST_F(MonthReport, AnObjectPrintsOnce) {
  addMany(2);
  EXPECT_EQ(texts(report.run(), "lblName").size(), 2);
  EXPECT_EQ(texts(report.run(), "lblName").size(), 0);
}

TEST_F(MonthReport, WithoutEmployeesThereIsAPageWithoutRows) {
  for (int i = 0; i < 2; ++i) {
    const Document document = report.run();
    EXPECT_EQ(document.pageCount(), 1);
    EXPECT_EQ(texts(document, "lblMonth").size(), 1);
    EXPECT_EQ(texts(document, "lblName").size(), 0);
    report.presenceList.reset();
  }
}

TEST_F(MonthReport, BandsLineUpWithTheDaysOfTheHeading) {
  addBusy(2026, 10);
  report.presenceMonth = 10;
  const Document document = report.run();
  const QRectF name = shapes<BoxPrimitive>(document, "lblName").at(0).box;
  EXPECT_EQ(name.size(), QSizeF(1134, 1134));
  // A day of each kind: first, last, the narrow column, and the one after it.
  constexpr std::array<std::array<int, 3>, 6> places{
      {{1, 1134, 567}, {2, 1134, 567}, {11, 3969, 566}, {12, 3969, 566}, {13, 4535, 567}, {31, 9638, 567}}};
  for (const auto& [day, left, width] : places) {
    const bool upper = day % 2 == 1;
    const QRectF head = shapes<BoxPrimitive>(document, QStringLiteral("Label%1").arg(day + 29)).at(0).box;
    const QRectF enter = shapes<BoxPrimitive>(document, QStringLiteral("lblEnter%1").arg(day)).at(0).box;
    const QRectF exit = shapes<BoxPrimitive>(document, QStringLiteral("lblExit%1").arg(day)).at(0).box;
    EXPECT_EQ(enter.translated(-name.topLeft()), QRectF(left, upper ? 0 : 567, width, 283)) << day;
    EXPECT_EQ(exit.translated(-name.topLeft()), QRectF(left, upper ? 283 : 850, width, 284)) << day;
    EXPECT_EQ(head.left(), enter.left()) << day;
    EXPECT_EQ(head.width(), enter.width()) << day;
    EXPECT_EQ(head.height(), upper ? 283 : 284) << day;
  }
}

TEST_F(MonthReport, EveryCellIsFramedAndNothingLeavesThePaperOrIsCut) {
  addBusy(2026, 10);
  report.presenceMonth = 10;
  const Document document = report.run();
  const QRectF paper({0, 0}, document.paperSize());
  int frames = 0;
  for (const report::Primitive& primitive : document.page(0)) {
    if (const auto* box = std::get_if<BoxPrimitive>(&primitive.shape)) {
      ++frames;
      EXPECT_TRUE(paper.contains(box->box)) << primitive.control.toStdString();
    } else if (const auto* text = std::get_if<TextPrimitive>(&primitive.shape)) {
      EXPECT_FALSE(text->text.contains(u'…')) << primitive.control.toStdString();
    }
  }
  EXPECT_EQ(frames, 33 + 65);
  const auto enter = shapes<TextPrimitive>(document, "lblEnter11").at(0);
  EXPECT_EQ(enter.font.size, report.Detail.control(QStringLiteral("lblEnter11")).Font.size);
}
