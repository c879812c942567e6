#include <gtest/gtest.h>

#include "records/EmployeeNames.h"
#include "support/TestHome.h"

TEST(EmployeeNames, AreThoseOfTheListAndTouchNoPhoto) {
  const support::TestHome home;
  home.execute(QStringLiteral("INSERT INTO Dept(DNAME) VALUES('教务处')"));
  home.insertEmployee(QStringLiteral("B"), QStringLiteral("乙"), 1, {});
  home.insertEmployee(QStringLiteral("A"), QStringLiteral("甲"), 1, support::TestHome::tinyJpeg());
  home.insertEmployee(QStringLiteral("C"), QStringLiteral("丙"), 99, {});
  const auto names = loadEmployeeNames();
  ASSERT_EQ(names.size(), 2u);
  EXPECT_EQ(names[0].ENUMBER, QStringLiteral("B"));
  EXPECT_EQ(names[1].ENAME, QStringLiteral("甲"));
  EXPECT_FALSE(QFile::exists(home.file(QStringLiteral("A.jpg"))));
}
