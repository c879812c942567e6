#include "CardHome.h"
#include "DrawnShapes.h"
#include "printing/DefaultLogo.h"
#include "printing/SingleEmployeeInfoReport.h"
#include "printing/clsLogo.h"
#include "printing/clsTextDspStyle.h"

using report::Document;

namespace {

class CardReport : public CardHome {
 protected:
  /// Lets go of the employees like the preview, so that they do not take the photo files of the next ones
  /// along.
  Document run(std::shared_ptr<clsEmployeeSet> set) {
    m_report.SetEmployeeSet(std::move(set));
    Document document = m_report.run();
    m_report.SetEmployeeSet(nullptr);
    return document;
  }

  SingleEmployeeInfoReport m_report;
};

void setUnit(const QString& name, const QString& size = QStringLiteral("20")) {
  clsTextDspStyle style;
  style.InitConfigGroupName(QStringLiteral("UNIT"));
  EXPECT_TRUE(style.SetName(name) && style.SetSize(size) && style.SetBold(true) && style.SetItalic(true) &&
              style.SetColor(0x0000FF));
}

}  // namespace

TEST_F(CardReport, EachEmployeeGetsACardInOrderFourAPage) {
  const Document document = run(employees(9));
  ASSERT_EQ(document.pageCount(), 3);
  EXPECT_EQ(texts(document, "lblName", 1), QStringList({QStringLiteral("员工5"), QStringLiteral("员工6"),
                                                        QStringLiteral("员工7"), QStringLiteral("员工8")}));
  EXPECT_EQ(texts(document, "lblNumber", 2), QStringList(QStringLiteral("G9")));
  EXPECT_EQ(document.entries(2), QStringList(QStringLiteral("员工9"))) << "the table of contents";
  EXPECT_EQ(texts(document, "lblDept", 2), QStringList(QStringLiteral("教务处")));
  EXPECT_EQ(texts(document, "Barcode", 2), QStringList(QStringLiteral("123456789012345")));
  EXPECT_EQ(texts(document, "Label2", 2), QStringList(QStringLiteral("岗位")));
}

TEST_F(CardReport, NothingStandsOutsideThePaperOrTheCard) {
  const Document document = run(employees(4));
  ASSERT_EQ(document.pageCount(), 1);
  const auto frames = shapes<report::BoxPrimitive>(document, "Shape1");
  ASSERT_EQ(frames.size(), 4U);
  const QRectF paper({0, 0}, document.paperSize());
  for (std::size_t i = 0; i < frames.size(); ++i) {
    EXPECT_EQ(frames[i].box.size(), QSizeF(4677, 3260));
    EXPECT_EQ(frames[i].box.top(), frames[0].box.top() + static_cast<double>(i) * 3495);
    EXPECT_TRUE(paper.contains(frames[i].box));
  }
  const QPointF origin = frames[1].box.topLeft();
  EXPECT_EQ(shapes<report::TextPrimitive>(document, "lblNumber")[1].box.translated(-origin),
            QRectF(3260, 2408, 992, 284));
  const auto photos = shapes<report::PicturePrimitive>(document, "ImgHead");
  EXPECT_EQ(photos[1].box.height(), 1701);
  EXPECT_EQ(photos[1].box.center() - origin, QPointF(142 + 2267 / 2.0, 992 + 1701 / 2.0));
}

TEST_F(CardReport, NoEmployeesGiveNoCard) {
  EXPECT_TRUE(run(std::make_shared<clsEmployeeSet>()).page(0).empty());
  EXPECT_TRUE(run(nullptr).page(0).empty());
}

TEST_F(CardReport, TheReportLetsGoOfTheEmployeesButTheDocumentKeepsTheirPhotos) {
  const Document document = run(employees(1));
  EXPECT_FALSE(QFile::exists(file(QStringLiteral("G1.jpg"))));
  EXPECT_FALSE(shapes<report::PicturePrimitive>(document, "ImgHead").at(0).picture->decode().isNull());
}

TEST_F(CardReport, SettingsAreReadAgainForEveryRun) {
  setUnit(QStringLiteral("第一中学"));
  const auto unit = shapes<report::TextPrimitive>(run(employees(1)), "lblUnit").at(0);
  EXPECT_EQ(unit.text, QStringLiteral("第一中学"));
  EXPECT_EQ(unit.font.name, QStringLiteral("隶书")) << "an empty name keeps the design font";
  EXPECT_TRUE(unit.font.bold && unit.font.italic);
  EXPECT_EQ(unit.color, 0x0000FF);
  EXPECT_EQ(m_report.Detail.control(QStringLiteral("lblUnit")).Font.size, 20);
  const auto& memo = m_report.Detail.control(QStringLiteral("lblMemo"));
  EXPECT_FALSE(memo.Font.bold || memo.Font.italic);
  EXPECT_EQ(memo.Font.size, 14);

  setUnit(QStringLiteral("第二中学"));
  EXPECT_EQ(texts(run(employees(1)), "lblUnit"), QStringList(QStringLiteral("第二中学")));
}

TEST_F(CardReport, ALongUnitNameIsDrawnSmallerThanItWasSet) {
  setUnit(QStringLiteral("某某市第一实验中学高中部"), QStringLiteral("26.5"));
  const auto unit = shapes<report::TextPrimitive>(run(employees(1)), "lblUnit").at(0);
  EXPECT_LT(unit.font.size, 26);
  EXPECT_EQ(unit.text, QStringLiteral("某某市第一实验中学高中部"));
  EXPECT_EQ(m_report.Detail.control(QStringLiteral("lblUnit")).Font.size, 26.5);
}

TEST_F(CardReport, TheLogoComesFromTheSettingsWhileItsFileIsThere) {
  EXPECT_EQ(shapes<report::PicturePrimitive>(run(employees(1)), "logPic").at(0).picture, defaultLogo());
  const QByteArray bytes = pictureBytes("png", {10, 10});
  EXPECT_TRUE(clsLogo().SetPath(write(QStringLiteral("logo.png"), bytes)));
  EXPECT_EQ(shapes<report::PicturePrimitive>(run(employees(1)), "logPic").at(0).picture->bytes(), bytes);
  write(QStringLiteral("logo.png"), "no picture");
  EXPECT_EQ(shapes<report::PicturePrimitive>(run(employees(1)), "logPic").at(0).picture, defaultLogo());
  EXPECT_EQ(m_report.photoFailures().size(), 1);
  EXPECT_TRUE(QFile::remove(file(QStringLiteral("logo.png"))));
  EXPECT_EQ(shapes<report::PicturePrimitive>(run(employees(1)), "logPic").at(0).picture, defaultLogo());
  EXPECT_TRUE(m_report.photoFailures().isEmpty());
}

TEST_F(CardReport, APhotoThatCannotBeReadLeavesAnEmptyFrameAndIsNamed) {
  auto set = employees(1);
  set->Add(employee(QStringLiteral("B2"), QStringLiteral("坏"), "not a picture"));
  set->Add(employee(QStringLiteral("B3"), QStringLiteral("空"), ""));
  auto gone = employee(QStringLiteral("B4"), QStringLiteral("无"), "x");
  EXPECT_TRUE(QFile::remove(gone->HeadImg()));
  set->Add(gone);
  const auto photos = shapes<report::PicturePrimitive>(run(set), "ImgHead");
  ASSERT_EQ(photos.size(), 4U);
  EXPECT_NE(photos[0].picture, nullptr);
  for (std::size_t i = 1; i < 4; ++i) {
    EXPECT_EQ(photos[i].picture, nullptr);
    EXPECT_EQ(photos[i].box.size(), QSizeF(2267, 1701));
  }
  ASSERT_EQ(m_report.photoFailures().size(), 3);
  EXPECT_TRUE(m_report.photoFailures()[0].startsWith(QStringLiteral("编号为[B2]的员工的照片无法读取：")));
  EXPECT_TRUE(m_report.photoFailures()[2].contains(QStringLiteral("找不到")));
  std::ignore = run(employees(1));
  EXPECT_TRUE(m_report.photoFailures().isEmpty());
}

TEST_F(CardReport, TheToolbarSpeaksChinese) {
  std::ignore = run(nullptr);
  EXPECT_EQ(m_report.Toolbar.Tools[2].Caption, QStringLiteral("打印..."));
  EXPECT_EQ(m_report.Toolbar.Tools[19].Tooltip, QStringLiteral("后退"));
}
