#include <algorithm>
#include <gtest/gtest.h>

#include "report/FrameLines.h"

TEST(FrameLines, OneFrameIsItsFourSidesWithFullCorners) {
  report::FrameLines frames;
  frames.add({100, 200, 50, 30}, 10);
  const auto lines = frames.take();
  ASSERT_EQ(lines.size(), 1u);
  const std::vector<QLineF> expected{
      {95, 200, 155, 200}, {95, 230, 155, 230}, {100, 195, 100, 235}, {150, 195, 150, 235}};
  EXPECT_EQ(lines.at(10), expected);
  EXPECT_TRUE(frames.take().empty());
}

TEST(FrameLines, AGridHasALineForEachRowAndColumn) {
  report::FrameLines frames;
  for (int row = 0; row < 3; ++row) {
    for (int column = 0; column < 4; ++column) frames.add(QRectF(column * 567, row * 283, 567, 283), 5);
  }
  EXPECT_EQ(frames.take().at(5).size(), 4u + 5u);
}

TEST(FrameLines, FramesThatStandApartOrDifferInWidthKeepTheirLines) {
  report::FrameLines frames;
  frames.add({0, 0, 100, 100}, 5);
  frames.add({200, 0, 100, 100}, 5);
  frames.add({0, 0, 100, 100}, 15);
  const auto lines = frames.take();
  EXPECT_EQ(lines.at(5).size(), 8u);
  EXPECT_EQ(lines.at(15).size(), 4u);
}
