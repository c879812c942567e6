#include <QStringList>

#include "CardHome.h"
#include "DrawnShapes.h"
#include "printing/CardSheetReport.h"

using report::BoxPrimitive;
using report::Document;

namespace {

constexpr int tenMillimetres = 567;

class CardSheets : public CardHome {
 protected:
  [[nodiscard]] static Document print(SingleEmployeeInfoReport& report, std::shared_ptr<clsEmployeeSet> set) {
    report.SetEmployeeSet(std::move(set));
    Document document = report.run();
    report.SetEmployeeSet(nullptr);
    return document;
  }
  [[nodiscard]] Document print(const CardSheet& sheet, int cards) const {
    CardSheetReport report(sheet);
    return print(report, employees(cards));
  }
  /// The places on the page that hold a card.
  [[nodiscard]] static std::vector<QRectF> cards(const Document& document, int page) {
    std::vector<QRectF> boxes;
    for (const auto& frame : shapes<BoxPrimitive>(document, "Shape1", page)) boxes.push_back(frame.box);
    return boxes;
  }
  [[nodiscard]] static std::vector<QRectF> places(const CardSheet& sheet, int from, int to) {
    std::vector<QRectF> boxes;
    for (int place = from; place <= to; ++place) boxes.emplace_back(sheet.box(place));
    return boxes;
  }
};

CardSheet sheetAt(int start, int right = 0, int down = 0) {
  CardSheet sheet;
  sheet.start = start;
  sheet.right = right;
  sheet.down = down;
  return sheet;
}

/// Where a card's texts stand from its corner, and what they say in which font.
QStringList textsOf(const Document& document, std::size_t card) {
  const QPointF corner = shapes<BoxPrimitive>(document, "Shape1").at(card).box.topLeft();
  QStringList lines;
  for (const char* control : {"Label3", "lblName", "lblDept", "lblNumber", "Barcode"}) {
    const auto text = shapes<report::TextPrimitive>(document, control).at(card);
    const QPointF place = text.box.topLeft() - corner;
    lines.append(QStringLiteral("%1 %2 %3 %4 %5")
                     .arg(place.x())
                     .arg(place.y())
                     .arg(text.text, text.font.name)
                     .arg(text.font.size));
  }
  return lines;
}

}  // namespace

TEST_F(CardSheets, EightCardsStandInTheMiddleOfEachSheetWithGapsBetweenThem) {
  const CardSheet sheet;
  const Document document = print(sheet, 17);
  ASSERT_EQ(document.pageCount(), 3);
  EXPECT_EQ(cards(document, 0), places(sheet, 1, 8));
  EXPECT_EQ(cards(document, 1), places(sheet, 1, 8));
  EXPECT_EQ(cards(document, 2), places(sheet, 1, 1));
  const QRect first = sheet.box(1);
  const QRect last = sheet.box(8);
  EXPECT_EQ(first.size(), QSize(4677, 3260));
  EXPECT_NEAR(first.left(), 11906 - last.left() - last.width(), 1);
  EXPECT_NEAR(first.top(), 16838 - last.top() - last.height(), 1);
  EXPECT_EQ(sheet.box(2).left() - first.left() - first.width(), 283);
  EXPECT_EQ(sheet.box(2).top(), first.top());
  EXPECT_EQ(sheet.box(3).top() - first.top() - first.height(), 283);
  EXPECT_EQ(document.entries(0).size(), 8);
  EXPECT_EQ(document.entries(2), QStringList(QStringLiteral("员工17")));
}

TEST_F(CardSheets, ACardIsTheOneThatIsPrintedByItself) {
  SingleEmployeeInfoReport plain;
  const Document page = print(plain, employees(2));
  const Document sheet = print(CardSheet(), 2);
  for (const std::size_t card : {0U, 1U}) {
    EXPECT_EQ(textsOf(sheet, card), textsOf(page, card));
    const auto photo = [card](const Document& document) {
      const QRectF box = shapes<report::PicturePrimitive>(document, "ImgHead").at(card).box;
      return box.translated(-cards(document, 0).at(card).topLeft());
    };
    EXPECT_EQ(photo(sheet), photo(page));
  }
}

TEST_F(CardSheets, TheFirstSheetStartsWhereItIsStillFree) {
  const CardSheet sheet = sheetAt(7);
  const Document document = print(sheet, 11);
  ASSERT_EQ(document.pageCount(), 3);
  EXPECT_EQ(cards(document, 0), places(sheet, 7, 8));
  EXPECT_EQ(texts(document, "lblNumber", 0), QStringList({QStringLiteral("G1"), QStringLiteral("G2")}));
  EXPECT_EQ(cards(document, 1), places(sheet, 1, 8));
  EXPECT_EQ(cards(document, 2), places(sheet, 1, 1));
  for (const auto& [start, number, sheets] :
       {std::tuple(1, 0, 0), {1, 1, 1}, {1, 8, 1}, {1, 9, 2}, {8, 1, 1}, {8, 2, 2}, {7, 11, 3}}) {
    EXPECT_EQ(sheetAt(start).sheetsFor(number), sheets) << start << ' ' << number;
  }
}

TEST_F(CardSheets, AnOffsetMovesAllAndNeverOffThePaper) {
  // 1.5 mm are 85.04 twips, 0.3 mm 17.01.
  const CardSheet moved = sheetAt(1, 15, -3);
  EXPECT_EQ(moved.box(4).topLeft() - CardSheet().box(4).topLeft(), QPoint(85, -17));
  EXPECT_EQ(moved.cutLines().at(7).topLeft() - CardSheet().cutLines().at(7).topLeft(), QPoint(85, -17));
  const QRectF paper({0, 0}, QSizeF(CardSheet::paperSize));
  for (const int right : {-CardSheet::farthest, 0, CardSheet::farthest}) {
    for (const int down : {-CardSheet::farthest, 0, CardSheet::farthest}) {
      const CardSheet sheet = sheetAt(1, right, down);
      const Document document = print(sheet, 9);
      ASSERT_EQ(document.pageCount(), 2) << right << ' ' << down;
      EXPECT_EQ(cards(document, 0), places(sheet, 1, 8));
      for (const QRectF& card : cards(document, 0)) {
        EXPECT_TRUE(paper.marginsRemoved(QMarginsF(1, 1, 1, 1) * tenMillimetres).contains(card));
      }
      for (const auto& mark : shapes<BoxPrimitive>(document, "CutMark")) {
        EXPECT_TRUE(paper.contains(mark.box.topLeft()) && paper.contains(mark.box.bottomRight()));
      }
    }
  }
}

TEST_F(CardSheets, CutMarksProlongEveryEdgeAndTouchNoCard) {
  const CardSheet sheet = sheetAt(1, 15, -3);
  const Document document = print(sheet, 1);
  const auto marks = shapes<BoxPrimitive>(document, "CutMark");
  // Two lines for each of the 4 edges of columns and 8 edges of rows.
  ASSERT_EQ(marks.size(), 24U);
  const QRectF block = QRectF(sheet.box(1)) | QRectF(sheet.box(8));
  for (int place = 1; place <= CardSheet::places; ++place) {
    const QRectF card(sheet.box(place));
    for (const double x : {card.left(), card.right()}) {
      EXPECT_EQ(std::count_if(marks.begin(), marks.end(),
                              [x](const auto& mark) { return mark.box.x() == x && mark.box.width() == 0; }),
                2);
    }
    for (const double y : {card.top(), card.bottom()}) {
      EXPECT_EQ(std::count_if(marks.begin(), marks.end(),
                              [y](const auto& mark) { return mark.box.y() == y && mark.box.height() == 0; }),
                2);
    }
  }
  for (const auto& mark : marks) {
    const bool beside = mark.box.right() < block.left() || mark.box.left() > block.right();
    EXPECT_TRUE(beside || mark.box.bottom() < block.top() || mark.box.top() > block.bottom());
  }
  CardSheet plain;
  plain.cutMarks = false;
  EXPECT_TRUE(shapes<BoxPrimitive>(print(plain, 1), "CutMark").empty());
}

TEST_F(CardSheets, EmployeesComeFromTheTopOfTheListOrByNumber) {
  clsEmployeeSet picked;
  const QStringList fromTheBottom{QStringLiteral("A10"), QStringLiteral("b1"),   QStringLiteral("a9"),
                                  QStringLiteral("10"),  QStringLiteral("A009"), QStringLiteral("9"),
                                  QStringLiteral("A"),   QStringLiteral("0")};
  for (const QString& number : fromTheBottom) picked.Add(employee(number, number, "x"));
  const auto numbers = [&picked](CardSheet::Order order) {
    QStringList result;
    const auto employees = arranged(picked, order);
    for (const auto& member : *employees) result.append(member->ENUMBER());
    return result.join(u' ');
  };
  EXPECT_EQ(numbers(CardSheet::Order::AsListed), QStringLiteral("0 A 9 A009 10 a9 b1 A10"));
  EXPECT_EQ(numbers(CardSheet::Order::ByNumber), QStringLiteral("0 9 10 A A009 a9 A10 b1"));
}
