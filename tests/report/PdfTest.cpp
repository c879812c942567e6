#include <gtest/gtest.h>

#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>

#include "../graphics/PictureBytes.h"
#include "SmallReport.h"
#include "report/Pdf.h"
#include "runtime/RuntimeError.h"
#include "support/Files.h"
#include "support/FullDisk.h"

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

/// What the PDF says of the image that is stored as exactly these bytes; empty when there is none. An image's
/// description stands right before its bytes.
QByteArray descriptionOf(const QByteArray& pdf, const QByteArray& bytes) {
  const qsizetype at = pdf.indexOf("stream\n" + bytes);
  return at < 0 ? QByteArray() : pdf.left(at).mid(pdf.lastIndexOf(" obj", at));
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
  support::writeFile(path, pdf);
  const QString stem = directory.filePath(QStringLiteral("page"));
  output(QStringLiteral("pdftoppm"), {QStringLiteral("-r"), QStringLiteral("144"), QStringLiteral("-png"),
                                      QStringLiteral("-singlefile"), path, stem});
  return QImage(stem + QStringLiteral(".png"));
}

/// The middle of the right half of the picture in band `band` of pictureReport, as rendered().
QColor rightHalf(const QImage& page, int band) {
  return page.pixelColor((500 + 700) / 10, (700 + 1000 * band + 450) / 10);
}

}  // namespace

TEST(Pdf, JpegPhotosGoInAsTheBytesTheyAre) {
  const QByteArray color = pictureBytes("jpg", {60, 60});
  const QByteArray gray = pictureBytes("jpg", {50, 50}, Qt::white, true);
  const QByteArray pdf = report::toPdf(pictureReport({color, gray, color}));
  for (const char* entry : {"/Filter /DCTDecode", "/ColorSpace /DeviceRGB", "/Width 60", "/Height 60"}) {
    EXPECT_TRUE(descriptionOf(pdf, color).contains(entry)) << entry;
  }
  EXPECT_TRUE(descriptionOf(pdf, gray).contains("/ColorSpace /DeviceGray"));
  EXPECT_EQ(pdf.count(color), 1) << "the same photo is stored once";
}

TEST(Pdf, OtherPicturesAreDrawn) {
  const QByteArray jpeg = pictureBytes("jpg", {60, 60});
  const QByteArray pixel = pictureBytes("png", {1, 1}, QColor(0, 0, 0));
  const QByteArray cut = jpeg.left(jpeg.size() - 2);
  const QByteArray turned = withOrientation(jpeg, 3);
  const QByteArray pdf = report::toPdf(
      pictureReport({jpeg, pixel, pictureBytes("bmp", {20, 20}), cut, turned, printColorJpeg()}));
  EXPECT_EQ(pdf.count("/DCTDecode"), 1);
  EXPECT_FALSE(pdf.contains(turned));
  if (!isInstalled(QStringLiteral("pdftoppm"))) GTEST_SKIP() << "pdftoppm is not installed";
  const QImage page = rendered(pdf);
  EXPECT_GT(rightHalf(page, 0).red(), 200);
  EXPECT_LT(rightHalf(page, 1).red(), 50);
  EXPECT_GT(rightHalf(page, 2).red(), 200);
  EXPECT_LT(rightHalf(page, 4).red(), 100) << "turned by half, the dark half is on the right";
  EXPECT_GT(rightHalf(page, 5).red(), 200);
  EXPECT_LT(rightHalf(page, 5).green(), 60);
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
  support::writeFile(path, "old");
  EXPECT_THROW(report::writePdf(report::Document(), path), runtime::RuntimeError);
  EXPECT_EQ(support::contentOf(path), "old");
  SmallReport small;
  EXPECT_THROW(report::writePdf(small.run(), directory.filePath(QStringLiteral("none/x.pdf"))),
               runtime::RuntimeError);
  const support::FullDisk disk(100);
  EXPECT_THROW(report::writePdf(small.run(), path), runtime::RuntimeError);
  EXPECT_EQ(support::contentOf(path), "old");
}
