#include "exchange/RosterFixture.h"
#include "runtime/Progress.h"

TEST_F(Roster, LinesThatAreRightSayWhatBecomesOfThem) {
  addPictures({QStringLiteral("B1"), QStringLiteral("a1")});
  write({QStringLiteral("B1,李四,教务处,2026年9月1日,"), QStringLiteral("a1,张山,教务处,,")});
  const RosterCheck check = checked();
  EXPECT_EQ(check.counts().text(), QStringLiteral("新增 1 名，更新 1 名"));
  const RosterLine& added = check.lines()[0];
  EXPECT_EQ(added.outcome(), QStringLiteral("新增"));
  EXPECT_EQ(added.entered, QDateTime(QDate(2026, 9, 1), QTime(0, 0)));
  EXPECT_EQ(added.barcode, QString());
  const RosterLine& updated = check.lines()[1];
  EXPECT_EQ(updated.outcome(), QStringLiteral("更新（原姓名“张三”）"));
  EXPECT_EQ(updated.entered.date(), QDate(2026, 11, 2)) << "the stored date";
  EXPECT_EQ(updated.barcode, cardOfA1);
}

TEST_F(Roster, NumbersAndNamesMustFitTheDatabase) {
  addPictures({QStringLiteral("B1"), QStringLiteral("B2"), QStringLiteral("B3"), QStringLiteral("O'Neil")});
  const QString fifty = QString(50, u'长');
  write({QStringLiteral(",李四,教务处,,"), QStringLiteral("../x,李四,教务处,,"),
         QStringLiteral("O'Neil,李四,教务处,,"), QStringLiteral("B1,,教务处,,"),
         QStringLiteral("B2,%1,教务处,,").arg(fifty), QStringLiteral("B3,%1字,教务处,,").arg(fifty),
         QStringLiteral("C\u200b1,\"李\n四\",教务处,,")});
  EXPECT_EQ(outcomes(),
            QStringList({QStringLiteral("错误：编号为空"),
                         QStringLiteral("错误：编号不能用作照片的文件名；没有照片 ../x.jpg（或 "
                                        ".jpeg、.png）"),
                         QStringLiteral("错误：编号中不能有单引号"), QStringLiteral("错误：姓名为空"),
                         QStringLiteral("新增"), QStringLiteral("错误：姓名超过 50 个字"),
                         QStringLiteral("错误：编号中有换行等看不见的字符；姓名中有换行等看不见的"
                                        "字符；没有照片 C\u200b1.jpg（或 .jpeg、.png）")}));
}

TEST_F(Roster, TheSameNumberTwiceIsWrongOnBothLines) {
  addPictures({QStringLiteral("b1"), QStringLiteral("A1")});
  home.insertEmployee(QStringLiteral("a1"), QStringLiteral("张三"), 1, "x");
  write({QStringLiteral("b1,李四,教务处,,"), QStringLiteral("Ｂ1,李四,教务处,,"),
         QStringLiteral("A1,张三,教务处,,")});
  EXPECT_EQ(outcomes(),
            QStringList({QStringLiteral("错误：编号与第 3 行相同"), QStringLiteral("错误：编号与第 2 行相同"),
                         QStringLiteral("错误：数据库中有不止一名员工使用这个编号")}));
}

TEST_F(Roster, DepartmentsAreMadeOnlyWhenThatIsAllowed) {
  addPictures({QStringLiteral("B1"), QStringLiteral("B2"), QStringLiteral("B3"), QStringLiteral("B4")});
  home.execute(QStringLiteral("INSERT INTO Dept(ID, DNAME) VALUES(40000, '远处')"));
  write({QStringLiteral("B1,李四,新处,,"), QStringLiteral("B2,李四,新'处,,"), QStringLiteral("B3,李四,,,"),
         QStringLiteral("B4,李四,远处,,")});
  const QStringList never{QStringLiteral("错误：部门中不能有单引号"), QStringLiteral("错误：部门为空"),
                          QStringLiteral("错误：部门“远处”的部门号 40000 超出范围")};
  EXPECT_EQ(outcomes(), QStringList(QStringLiteral("错误：没有部门“新处”")) + never);
  EXPECT_EQ(outcomes(true), QStringList(QStringLiteral("新增（新建部门“新处”）")) + never);
  EXPECT_EQ(checked(true).counts().text(), QStringLiteral("新增 1 名，更新 0 名，新建部门 1 个"));
}

TEST_F(Roster, DatesMustExist) {
  addPictures({QStringLiteral("B1"), QStringLiteral("B2"), QStringLiteral("B3")});
  write({QStringLiteral("B1,李四,教务处,2026-2-30,"), QStringLiteral("B2,李四,教务处,昨天,"),
         QStringLiteral("B3,李四,教务处,,")});
  const RosterCheck check = checked();
  EXPECT_EQ(check.lines()[0].outcome(),
            QStringLiteral("错误：录入日期“2026-2-30”不是有效的日期（应如 2026-11-15）"));
  EXPECT_FALSE(check.lines()[1].isRight());
  EXPECT_EQ(check.lines()[2].entered, QDateTime(QDate(2026, 11, 5), QTime(0, 0))) << "today";
}

TEST_F(Roster, BarcodesOfCardsInUseStayValid) {
  addPictures({QStringLiteral("A1"), QStringLiteral("B1"), QStringLiteral("B2"), QStringLiteral("B3"),
               QStringLiteral("B4"), QStringLiteral("B5")});
  write({QStringLiteral("A1,张三,教务处,,999999999999999"), QStringLiteral("B1,李四,教务处,,1.23E+14"),
         QStringLiteral("B2,李四,教务处,,１23456789012345"), QStringLiteral("B3,李四,教务处,,") + cardOfA1,
         QStringLiteral("B4,李四,教务处,,222222222222222"),
         QStringLiteral("B5,李四,教务处,,222222222222222")});
  const QStringList found = outcomes();
  EXPECT_TRUE(found[0].contains(QStringLiteral("已打印的卡会失效")));
  EXPECT_TRUE(found[1].contains(QStringLiteral("不是 15 位数字（表格软件会改写长数字")));
  EXPECT_EQ(found[2], QStringLiteral("错误：条码“１23456789012345”不是 15 位数字"));
  EXPECT_EQ(found[3], QStringLiteral("错误：条码“111111111111111”已由员工“A1”使用"));
  EXPECT_EQ(found[4], QStringLiteral("错误：条码与第 7 行相同"));
  EXPECT_EQ(found[5], QStringLiteral("错误：条码与第 6 行相同"));
  // A card that is none of ours is as good as any when it is the employee's own.
  home.execute(QStringLiteral("UPDATE Employee SET EBARCODE = 'AB12'"));
  write({QStringLiteral("A1,张三,教务处,,AB12")});
  EXPECT_EQ(outcomes(), QStringList(QStringLiteral("更新")));
}

TEST_F(Roster, PicturesAreToldByTheirNamesAlone) {
  support::writeFile(picture(QStringLiteral("B1.png")), "no picture");
  write({QStringLiteral("B1,李四,教务处,,"), QStringLiteral("B2,李四,教务处,,")});
  const QStringList found = outcomes();
  EXPECT_TRUE(found[0].contains(QStringLiteral("图片“B1.png”无法读取"))) << found[0].toStdString();
  EXPECT_TRUE(found[1].contains(QStringLiteral("没有照片 B2.jpg")));
}

TEST_F(Roster, CheckingCanBeCancelledAndBegunAgain) {
  class Cancelling : public runtime::ProgressListener {
   public:
    void progress(int done, int total) override {
      EXPECT_EQ(total, 2);
      steps = done;
    }
    [[nodiscard]] bool isCancelled() const override { return true; }
    int steps = 0;
  };
  addPictures({QStringLiteral("B1"), QStringLiteral("B2")});
  write({QStringLiteral("B1,李四,教务处,,"), QStringLiteral("B2,李四,教务处,,")});
  RosterCheck check(file(), folder());
  {
    Cancelling listener;
    const runtime::ProgressScope scope(listener);
    EXPECT_FALSE(check.checkPhotos());
    EXPECT_EQ(listener.steps, 1);
  }
  EXPECT_TRUE(check.checkPhotos());
  check.judge(false);
  EXPECT_EQ(check.counts().right(), 2);
}
