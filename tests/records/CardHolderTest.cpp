#include "records/CardHolder.h"
#include "records/RecordsFixture.h"

namespace {

class Card : public RecordsTest {
 protected:
  Card() { addDepartment(QStringLiteral("教务处")); }

  [[nodiscard]] static CardHolder holder(const char* code) {
    return findCardHolder(QString::fromLatin1(code));
  }
};

TEST_F(Card, BelongsToWhoHasItsBarcode) {
  addEmployee(QStringLiteral("A1"), QStringLiteral("123456789012345"));
  const CardHolder found = holder("123456789012345");
  ASSERT_NE(found.employee, nullptr);
  EXPECT_EQ(found.employee->ENUMBER(), QStringLiteral("A1"));
  EXPECT_EQ(found.employee->DNAME(), QStringLiteral("教务处"));
  EXPECT_EQ(photoFiles(), QStringList{QStringLiteral("A1.jpg")});
  for (const char* code : {"12345678901234", "1234567890123456", "", "x", "1' OR '1'='1"}) {
    const CardHolder nobody = holder(code);
    EXPECT_EQ(nobody.employee, nullptr) << code;
    EXPECT_EQ(nobody.failure.words, QString()) << code;
  }
}

TEST_F(Card, APhotoThatCannotBeReadOrWrittenDoesNotHinder) {
  m_home.insertEmployee(QStringLiteral("A1"), QStringLiteral("张三"), 1, {}, QStringLiteral("11"));
  addEmployee(QStringLiteral("A2"), QStringLiteral("22"));
  ASSERT_TRUE(QDir(m_home.path()).mkdir(QStringLiteral("A2.jpg")));
  addEmployee(QStringLiteral("a/3"), QStringLiteral("33"));
  const std::pair<const char*, QString> cards[] = {
      {"11", QStringLiteral("A1")}, {"22", QStringLiteral("A2")}, {"33", QStringLiteral("a/3")}};
  for (const auto& [code, number] : cards) {
    const CardHolder found = holder(code);
    ASSERT_NE(found.employee, nullptr) << code;
    EXPECT_EQ(found.employee->ENUMBER(), number);
    EXPECT_TRUE(found.photoFailure.contains(number)) << found.photoFailure.toStdString();
  }
}

}  // namespace
