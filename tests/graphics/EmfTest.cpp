#include <gtest/gtest.h>
#include <random>

#include <QScopeGuard>

#include "DarkPixels.h"
#include "EmfBytes.h"
#include "graphics/Picture.h"
#include "runtime/RuntimeError.h"

using graphics::Picture;

namespace {

constexpr QSize size(400, 200);

/// A red box without a border on the left half.
EmfBytes redLeft() {
  EmfBytes emf;
  emf.record(39, {1, 0, 0x0000FF, 0}).record(37, {1}).record(38, {2, 5, 0, 0, 0}).record(37, {2});
  return emf.record(43, {0, 0, 200, 200});
}

EmfBytes withText() {
  EmfBytes emf = redLeft();
  QByteArray font = EmfBytes::numbers({3, -40, 0, 0, 0, 400, 134 << 24, 0});
  const QString face = QStringLiteral("宋体");
  font += QByteArray(reinterpret_cast<const char*>(face.utf16()), face.size() * 2);
  font += QByteArray(4 + 92 - font.size(), '\0');
  emf.record(82, font).record(37, {3});
  return emf.text(220, 60, QStringLiteral("中国"));
}

/// The error's text; empty when the bytes were read.
QString errorOf(const QByteArray& bytes) {
  try {
    std::ignore = Picture(bytes, QStringLiteral("a.emf")).decode({40, 20});
  } catch (const runtime::RuntimeError& error) {
    EXPECT_EQ(error.number(), static_cast<int>(runtime::ErrorNumber::InvalidPicture));
    return error.description();
  }
  return {};
}

}  // namespace

TEST(Emf, ShapesAndChineseTextAreDrawnInsideOfTheBounds) {
  const Picture picture(withText().file(size), QStringLiteral("logo.bmp"));
  EXPECT_EQ(picture.size(), QSize(1200, 600));
  const QImage image = picture.decode();
  EXPECT_EQ(image.pixelColor(300, 300), QColor(Qt::red));
  EXPECT_EQ(image.pixelColor(900, 550), QColor(Qt::white));
  EXPECT_GT(darkPixels(image, {660, 100, 260, 300}), 1000);
  EXPECT_EQ(picture.decode({300, 150}).size(), QSize(300, 150));
}

TEST(Emf, AFileCutAnywhereIsRefusedByName) {
  const QByteArray bytes = withText().file(size);
  ASSERT_EQ(errorOf(bytes), QString());
  for (qsizetype length = 44; length < bytes.size(); ++length) {
    EXPECT_TRUE(errorOf(bytes.left(length)).contains(QStringLiteral("a.emf"))) << length;
  }
}

TEST(Emf, WhatDrawsNothingOrIsAbsurdlyLargeIsRefused) {
  EXPECT_TRUE(errorOf(EmfBytes().file(size)).contains(QStringLiteral("没有可显示的内容")));
  EXPECT_TRUE(errorOf(redLeft().file({2'000'000, 200})).contains(QStringLiteral("不合理")));
  EXPECT_NE(errorOf(redLeft().file({-5, -5})), QString());
}

TEST(Emf, DamagedBytesHarmNothing) {
  const QByteArray bytes = withText().file(size);
  std::mt19937 random(5);
  for (int i = 0; i < 100; ++i) {
    QByteArray damaged = bytes;
    for (int j = 0; j < 3; ++j) {
      damaged[88 + static_cast<qsizetype>(random()) % (bytes.size() - 88)] = static_cast<char>(random());
    }
    std::ignore = errorOf(damaged);
  }
}

TEST(Emf, AMissingConverterIsNamed) {
  const QByteArray path = qgetenv("PATH");
  const auto back = qScopeGuard([&path] { qputenv("PATH", path); });
  qputenv("PATH", "/nowhere");
  EXPECT_TRUE(errorOf(redLeft().file(size)).contains(QStringLiteral("emf2svg")));
}
