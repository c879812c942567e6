#include "exchange/RosterFixture.h"
#include "support/Thrown.h"

namespace {

class RosterPictures : public Roster {
 protected:
  /// What is wrong with a picture of these bytes; empty when nothing is.
  QString fault(const QByteArray& bytes) const {
    support::writeFile(path, bytes);
    try {
      checkRosterPhoto(path);
    } catch (const runtime::RuntimeError& error) {
      return error.description();
    }
    return {};
  }
  QByteArray stored(const QByteArray& bytes) const {
    support::writeFile(path, bytes);
    return loadRosterPhoto(path);
  }

  /// A picture that hardly can be packed: the left half red, noise on the right.
  static QImage noise(QSize size) {
    QImage image(size, QImage::Format_RGB32);
    std::uint32_t state = 1;
    for (int y = 0; y < size.height(); ++y) {
      auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
      for (int x = 0; x < size.width(); ++x) {
        state = state * 1664525 + 1013904223;
        line[x] = x < size.width() / 2 ? 0xffff0000 : state | 0xff000000;
      }
    }
    return image;
  }

  const QString path = picture(QStringLiteral("p.jpg"));
};

}  // namespace

TEST_F(RosterPictures, AreFoundByNumberAsTheDatabaseComparesIt) {
  for (const char* name : {"A1.JPG", "b2.png", "C3.jpeg", "C3.PNG", "D4.gif", "E.5.jpg"}) {
    support::writeFile(picture(QLatin1String(name)), "x");
  }
  const RosterPhotos photos(folder());
  EXPECT_EQ(photos.find(QStringLiteral("a1")).path, picture(QStringLiteral("A1.JPG")));
  EXPECT_EQ(photos.find(QStringLiteral("Ｂ2")).path, picture(QStringLiteral("b2.png")));
  EXPECT_EQ(photos.find(QStringLiteral("E.5")).path, picture(QStringLiteral("E.5.jpg")));
  EXPECT_EQ(photos.find(QStringLiteral("C3")).fault, QStringLiteral("有不止一张照片：C3.PNG、C3.jpeg"));
  EXPECT_EQ(photos.find(QStringLiteral("D4")).fault, QStringLiteral("没有照片 D4.jpg（或 .jpeg、.png）"));
}

TEST_F(RosterPictures, TheFolderOfTheProgramsOwnPhotosIsRefused) {
  EXPECT_EQ(support::thrownNumber([&] { RosterPhotos(home.path() + QStringLiteral("/.")); }),
            runtime::ErrorNumber::FileAccess);
  EXPECT_EQ(support::thrownNumber([&] { RosterPhotos(folder() + u'x'); }),
            runtime::ErrorNumber::FileNotFound);
}

TEST_F(RosterPictures, OnlyWholePicturesPass) {
  const QByteArray png = encoded(noise({40, 40}), "PNG");
  const QByteArray jpeg = encoded(noise({40, 40}), "JPG");
  EXPECT_EQ(fault(png), QString());
  EXPECT_EQ(fault(jpeg), QString());
  EXPECT_NE(fault({}), QString());
  EXPECT_NE(fault("no picture"), QString());
  EXPECT_NE(fault(png.left(png.size() / 2)), QString());
  EXPECT_TRUE(fault(jpeg.left(jpeg.size() / 2)).contains(QStringLiteral("不完整")));
}

TEST_F(RosterPictures, HugeOnesAreRefusedByTheirHeads) {
  QByteArray jpeg = support::TestHome::tinyJpeg();
  const qsizetype sides = jpeg.indexOf(QByteArray::fromHex("ffc0000b08")) + 5;
  EXPECT_NE(fault(jpeg.replace(sides, 4, QByteArray::fromHex("ea60ea60"))), QString()) << "60000 x 60000";
  EXPECT_TRUE(
      fault(jpeg.replace(sides, 4, QByteArray::fromHex("2ee02ee0"))).contains(QStringLiteral("太大了")));
  // Sides, kind and their check sum.
  QByteArray png = encoded(noise({4, 4}), "PNG");
  EXPECT_TRUE(fault(png.replace(16, 17, QByteArray::fromHex("0000ea600000ea6008020000000fb0e215")))
                  .contains(QStringLiteral("60000×60000")));
}

TEST_F(RosterPictures, AreKeptAsTheyAreUnlessTheFileIsLarge) {
  const QByteArray small = encoded(noise({100, 100}), "PNG");
  EXPECT_EQ(stored(small), small);

  QByteArray large = encoded(noise({1600, 800}), "PNG");
  ASSERT_GT(large.size(), 512 * 1024);
  const QImage kept = QImage::fromData(stored(large), "JPG");
  EXPECT_EQ(kept.size(), QSize(1200, 600));
  EXPECT_NEAR(qRed(kept.pixel(100, 300)), 255, 8);

  QImage clear(700, 700, QImage::Format_ARGB32);
  clear.fill(Qt::transparent);
  large = encoded(clear, "BMP");
  ASSERT_GT(large.size(), 512 * 1024);
  EXPECT_EQ(QImage::fromData(stored(large), "JPG").size(), QSize(700, 700)) << "nothing is enlarged";
}

TEST_F(RosterPictures, AreTurnedWhenTheyAreMadeAnew) {
  // A camera held on its side writes the turn into the head of the file instead of turning the picture.
  const QByteArray turned =
      QByteArray::fromHex("ffe1002245786966000049492a0008000000010012010300010000000600000000000000");
  QByteArray jpeg = encoded(noise({2000, 1250}), "JPG").insert(2, turned);
  ASSERT_GT(jpeg.size(), 512 * 1024);
  const QImage kept = QImage::fromData(stored(jpeg), "JPG");
  EXPECT_EQ(kept.size(), QSize(750, 1200));
  EXPECT_NEAR(qRed(kept.pixel(375, 100)), 255, 12) << "what was left is on top";
  EXPECT_NEAR(qGreen(kept.pixel(375, 100)), 0, 12);
}
