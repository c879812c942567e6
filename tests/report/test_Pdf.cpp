#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <qpdf/QPDF.hh>

#include "../graphics/PictureBytes.h"
#include "SmallReport.h"
#include "report/Pdf.h"
#include "report/PhotoStreams.h"
#include "runtime/RuntimeError.h"

namespace {

/// A report of one picture a band.
report::Document pictureReport(const std::vector<QByteArray>& pictures) {
  SmallReport small;
  small.bandCount = static_cast<int>(pictures.size());
  report::Control image = SmallReport::label(QStringLiteral("img"), {0, 0, 900, 900});
  image.Kind = report::ControlKind::Image;
  small.Detail.Controls = {image};
  small.fill = [&pictures](SmallReport& filled, int band) {
    filled.Detail.Controls[0].Picture = std::make_shared<const graphics::Picture>(
        pictures[static_cast<std::size_t>(band)], QStringLiteral("x"));
  };
  return small.run();
}

struct StoredImage {
  std::string filter;
  std::string colors;
  qint64 width = 0;
  QByteArray bytes;
};

std::vector<StoredImage> imagesOf(const QByteArray& pdf) {
  QPDF content;
  content.processMemoryFile("test", pdf.constData(), static_cast<std::size_t>(pdf.size()));
  EXPECT_TRUE(content.getWarnings().empty());
  std::vector<StoredImage> images;
  for (auto& object : content.getAllObjects()) {
    if (!object.isStream() || !object.getDict().getKey("/Subtype").isNameAndEquals("/Image")) continue;
    auto dictionary = object.getDict();
    const auto data = object.getRawStreamData();
    images.push_back(
        {dictionary.getKey("/Filter").isName() ? dictionary.getKey("/Filter").getName() : "",
         dictionary.getKey("/ColorSpace").isName() ? dictionary.getKey("/ColorSpace").getName() : "",
         dictionary.getKey("/Width").getIntValue(),
         QByteArray(reinterpret_cast<const char*>(data->getBuffer()),
                    static_cast<qsizetype>(data->getSize()))});
  }
  return images;
}

/// What a program prints.
QByteArray output(const QString& program, const QStringList& arguments) {
  QProcess process;
  process.start(program, arguments);
  EXPECT_TRUE(process.waitForFinished(60000)) << program.toStdString();
  return process.readAllStandardOutput();
}

bool isInstalled(const QString& program) {
  return !QStandardPaths::findExecutable(program).isEmpty();
}

/// The first page, 150 dots an inch.
QImage rendered(const QByteArray& pdf) {
  const QTemporaryDir directory;
  const QString path = directory.filePath(QStringLiteral("a.pdf"));
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(pdf);
  file.close();
  const QString stem = directory.filePath(QStringLiteral("page"));
  output(QStringLiteral("pdftoppm"), {QStringLiteral("-r"), QStringLiteral("144"), QStringLiteral("-png"),
                                      QStringLiteral("-singlefile"), path, stem});
  return QImage(stem + QStringLiteral(".png"));
}

/// The middle of the right half of the picture in band `band` of pictureReport, as rendered().
QColor rightHalf(const QImage& page, int band) {
  return page.pixelColor((500 + 700) / 10, (700 + 1000 * band + 450) / 10);
}

class FullDevice : public QBuffer {
 protected:
  qint64 writeData(const char* /*data*/, qint64 /*length*/) override { return -1; }
};

}  // namespace

TEST(Pdf, JpegPhotosGoInAsTheBytesTheyAre) {
  const QByteArray color = pictureBytes("jpg", {60, 60});
  const QByteArray gray = pictureBytes("jpg", {50, 50}, Qt::white, true);
  const auto images = imagesOf(report::toPdf(pictureReport({color, gray, color})));
  ASSERT_EQ(images.size(), 2U) << "the same photo is stored once";
  for (const StoredImage& image : images) {
    const bool isColor = image.width == 60;
    EXPECT_EQ(image.filter, "/DCTDecode");
    EXPECT_EQ(image.colors, isColor ? "/DeviceRGB" : "/DeviceGray");
    EXPECT_TRUE(image.bytes == (isColor ? color : gray));
  }
}

TEST(Pdf, OtherPicturesAreDrawn) {
  const QByteArray jpeg = pictureBytes("jpg", {60, 60});
  const QByteArray pixel = pictureBytes("png", {1, 1}, QColor(0, 0, 0));
  const QByteArray cut = jpeg.left(jpeg.size() - 2);
  const QByteArray turned = withOrientation(jpeg, 3);
  const QByteArray pdf =
      report::toPdf(pictureReport({jpeg, pixel, pictureBytes("bmp", {20, 20}), cut, turned}));
  int asTheyAre = 0;
  for (const StoredImage& image : imagesOf(pdf)) {
    if (image.filter == "/DCTDecode") ++asTheyAre;
    EXPECT_FALSE(image.bytes == cut || image.bytes == turned);
  }
  EXPECT_EQ(asTheyAre, 1);
  if (!isInstalled(QStringLiteral("pdftoppm"))) GTEST_SKIP() << "pdftoppm is not installed";
  const QImage page = rendered(pdf);
  EXPECT_GT(rightHalf(page, 0).red(), 200);
  EXPECT_LT(rightHalf(page, 1).red(), 50);
  EXPECT_GT(rightHalf(page, 2).red(), 200);
  EXPECT_LT(rightHalf(page, 4).red(), 100) << "turned by half, the dark half is on the right";
}

TEST(Pdf, BothWaysLookTheSame) {
  if (!isInstalled(QStringLiteral("pdftoppm"))) GTEST_SKIP() << "pdftoppm is not installed";
  const report::Document document =
      pictureReport({pictureBytes("jpg", {60, 60}), pictureBytes("jpg", {90, 60}, Qt::blue)});
  const QImage own = rendered(report::toPdf(document));
  const QImage drawn = rendered(report::toPdf(document, report::PhotoEncoding::Drawn));
  ASSERT_EQ(own.size(), QSize(600, 800));
  ASSERT_EQ(own.size(), drawn.size());
  for (const int band : {0, 1}) {
    EXPECT_NEAR(rightHalf(own, band).red(), rightHalf(drawn, band).red(), 12);
    EXPECT_NEAR(rightHalf(own, band).blue(), rightHalf(drawn, band).blue(), 12);
  }
}

TEST(Pdf, TextsCanBeReadBackPageByPage) {
  if (!isInstalled(QStringLiteral("pdftotext"))) GTEST_SKIP() << "pdftotext is not installed";
  SmallReport small;
  small.Title = QStringLiteral("签到卡");
  small.bandCount = 7;
  small.fill = [](SmallReport& filled, int band) {
    filled.Detail.Controls[0].Caption = QStringLiteral("员工%1").arg(band + 1);
  };
  const QTemporaryDir directory;
  const QString path = directory.filePath(QStringLiteral("签到卡.pdf"));
  report::writePdf(small.run(), path);
  const QString text = QString::fromUtf8(output(QStringLiteral("pdftotext"), {path, QStringLiteral("-")}));
  EXPECT_EQ(text.count(QChar(0x0C)), 2);
  EXPECT_TRUE(text.section(QChar(0x0C), 0, 0).contains(QStringLiteral("员工6")));
  EXPECT_TRUE(text.section(QChar(0x0C), 1, 1).contains(QStringLiteral("员工7")));
  const QString info = QString::fromUtf8(output(QStringLiteral("pdfinfo"), {path}));
  EXPECT_TRUE(info.contains(QStringLiteral("签到卡")));
  EXPECT_TRUE(info.contains(QRegularExpression(QStringLiteral("Page size: +300 x 400 pts"))))
      << info.toStdString();
}

TEST(Pdf, ABarcodeIsReadFromThePage) {
  if (!isInstalled(QStringLiteral("zbarimg")) || !isInstalled(QStringLiteral("pdftoppm"))) {
    GTEST_SKIP() << "zbarimg or pdftoppm is not installed";
  }
  SmallReport small;
  small.bandCount = 1;
  report::Control barcode =
      SmallReport::label(QStringLiteral("Barcode"), {0, 0, 2834, 283}, QStringLiteral("904512673388120"));
  barcode.Kind = report::ControlKind::Barcode;
  small.Detail.Controls = {barcode};
  small.fill = [](SmallReport&, int) {};
  const QTemporaryDir directory;
  const QString image = directory.filePath(QStringLiteral("page.png"));
  ASSERT_TRUE(rendered(report::toPdf(small.run())).save(image));
  EXPECT_EQ(output(QStringLiteral("zbarimg"),
                   {QStringLiteral("--nodbus"), QStringLiteral("-q"), QStringLiteral("--raw"),
                    QStringLiteral("-Sdisable"), QStringLiteral("-Scode128.enable"), image})
                .trimmed(),
            "904512673388120");
}

TEST(Pdf, WhatCannotBeMadeLeavesTheOldFile) {
  const QTemporaryDir directory;
  const QString path = directory.filePath(QStringLiteral("old.pdf"));
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("old");
  file.close();
  EXPECT_THROW(report::writePdf(report::Document(), path), runtime::RuntimeError);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.readAll(), "old");
  SmallReport small;
  EXPECT_THROW(report::writePdf(small.run(), directory.filePath(QStringLiteral("none/x.pdf"))),
               runtime::RuntimeError);
}

TEST(PhotoStreams, WritesNothingWhenThePlaceholdersAreNotThoseHandedOut) {
  const QByteArray pdf = report::toPdf(pictureReport({}));
  QBuffer target;
  target.open(QIODevice::WriteOnly);
  EXPECT_FALSE(report::replacePlaceholders(pdf, {{pictureBytes("jpg", {60, 60}), {60, 60}, 3}}, target));
  EXPECT_TRUE(target.data().isEmpty());
}

TEST(PhotoStreams, AFullDiskAndADamagedDocumentAreErrors) {
  FullDevice full;
  full.open(QIODevice::WriteOnly);
  EXPECT_THROW(std::ignore = report::replacePlaceholders(report::toPdf(pictureReport({})), {}, full),
               runtime::RuntimeError);
  QBuffer target;
  target.open(QIODevice::WriteOnly);
  EXPECT_THROW(std::ignore = report::replacePlaceholders("no document", {}, target), runtime::RuntimeError);
}
