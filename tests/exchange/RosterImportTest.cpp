#include <functional>

#include "ado/Recordset.h"
#include "exchange/RosterFixture.h"
#include "exchange/RosterImport.h"
#include "runtime/Progress.h"
#include "support/FullDisk.h"
#include "support/Thrown.h"

namespace {

/// Acts at one step of an import.
class AtStep : public runtime::ProgressListener {
 public:
  AtStep(int step, std::function<void()> act) : m_step(step), m_act(std::move(act)), m_scope(*this) {}
  void progress(int done, int) override {
    if (done == m_step) m_act();
  }
  [[nodiscard]] bool isCancelled() const override { return cancelled; }
  bool cancelled = false;

 private:
  int m_step;
  std::function<void()> m_act;
  runtime::ProgressScope m_scope;
};

class RosterWriting : public Roster {
 protected:
  /// Checks and imports; the pictures of the user must outlive it, whatever happens.
  RosterCounts import(const RosterOptions& options = {}) {
    RosterCheck check = checked(options.createDepartments);
    RosterImport writing(check);
    EXPECT_TRUE(writing.run(options));
    return writing.written();
  }
  QString single(const QString& query) const {
    ado::Recordset rows;
    rows.Open(query, m_reader);
    return rows.Fields(0).Value().toString();
  }
  QString column(const QString& what, const QString& number) const {
    return single(QStringLiteral("SELECT %1 FROM Employee WHERE ENUMBER = '%2'").arg(what, number));
  }
  QString employees() const { return single(QStringLiteral("SELECT COUNT(*) FROM Employee")); }
  QString departments() const { return single(QStringLiteral("SELECT COUNT(*) FROM Dept")); }
  int pictures() const { return static_cast<int>(QDir(folder()).entryList(QDir::Files).size()); }

  /// Three lines: A1 who is there, B1 and B2 who are not, in a department that is not there either.
  void writeThree() const {
    addPictures({QStringLiteral("A1"), QStringLiteral("B1"), QStringLiteral("B2")});
    write({QStringLiteral("A1,张三丰,新处,2026-9-1,"), QStringLiteral("B1,李四,新处,2026-9-2,"),
           QStringLiteral("B2,王五,新处,,333333333333333")});
  }
  const RosterOptions m_creating{.createDepartments = true};

 private:
  /// Sees what is committed.
  const std::shared_ptr<ado::Connection> m_reader = home.connect();
};

}  // namespace

TEST_F(RosterWriting, AddsUpdatesAndCanBeDoneAgain) {
  writeThree();
  EXPECT_EQ(import(m_creating).text(), QStringLiteral("新增 2 名，更新 1 名，新建部门 1 个"));
  EXPECT_EQ(column(QStringLiteral("ENAME"), QStringLiteral("A1")), QStringLiteral("张三丰"));
  EXPECT_EQ(column(QStringLiteral("EBARCODE"), QStringLiteral("A1")), cardOfA1);
  EXPECT_EQ(column(QStringLiteral("DID"), QStringLiteral("B2")), QStringLiteral("2"));
  EXPECT_EQ(column(QStringLiteral("EBARCODE"), QStringLiteral("B2")), QStringLiteral("333333333333333"));
  EXPECT_EQ(column(QStringLiteral("DATE(ENTERDATE)"), QStringLiteral("B1")), QStringLiteral("2026-09-02"));
  EXPECT_EQ(column(QStringLiteral("HEX(HEADIMG)"), QStringLiteral("A1")).toLower(),
            QString::fromLatin1(support::TestHome::tinyJpeg().toHex()));
  const QString made = column(QStringLiteral("EBARCODE"), QStringLiteral("B1"));
  EXPECT_EQ(made.size(), 15);

  EXPECT_EQ(import().text(), QStringLiteral("新增 0 名，更新 3 名"));
  EXPECT_EQ(column(QStringLiteral("EBARCODE"), QStringLiteral("B1")), made);
  EXPECT_EQ(employees(), QStringLiteral("3"));
  EXPECT_EQ(pictures(), 3);
  EXPECT_EQ(QDir(home.path()).entryList({QStringLiteral("*.jpg")}), QStringList());
}

TEST_F(RosterWriting, ALineThatIsWrongKeepsAllFromBeingWrittenUnlessItMayBeLeftOut) {
  addPictures({QStringLiteral("B1")});
  write({QStringLiteral("B1,李四,教务处,,"), QStringLiteral("B2,王五,教务处,,")});
  RosterCheck check = checked();
  RosterImport writing(check);
  EXPECT_TRUE(support::thrown([&] { std::ignore = writing.run({}); })
                  .description()
                  .contains(QStringLiteral("有 1 行有错，没有导入：第 3 行：没有照片")));
  EXPECT_EQ(employees(), QStringLiteral("1"));
  EXPECT_TRUE(writing.run({.skipBad = true}));
  EXPECT_EQ(writing.written().added, 1);
  EXPECT_EQ(writing.written().wrong, 1);
}

TEST_F(RosterWriting, CancellingAtAnyStepLeavesNothing) {
  writeThree();
  for (const int step : {1, 3, 4, 6}) {
    RosterCheck check = checked(true);
    AtStep listener(step, [&] { listener.cancelled = true; });
    EXPECT_FALSE(RosterImport(check).run(m_creating)) << step;
    EXPECT_EQ(employees(), QStringLiteral("1"));
    EXPECT_EQ(departments(), QStringLiteral("1"));
    EXPECT_EQ(column(QStringLiteral("ENAME"), QStringLiteral("A1")), QStringLiteral("张三"));
  }
  EXPECT_EQ(pictures(), 3);
  EXPECT_EQ(import(m_creating).right(), 3) << "and it can be done after all";
}

TEST_F(RosterWriting, AFailureHalfWayLeavesNothingAndNamesTheLine) {
  writeThree();
  home.insertEmployee(QStringLiteral("C1"), QStringLiteral("王五"), 1, "x");
  home.execute(QStringLiteral("CREATE UNIQUE INDEX NoNamesakes ON Employee (ENAME)"));
  RosterCheck check = checked(true);
  const QString why =
      support::thrown([&] { std::ignore = RosterImport(check).run(m_creating); }).description();
  EXPECT_TRUE(why.contains(QStringLiteral("第 4 行的员工“B2”未能写入"))) << why.toStdString();
  EXPECT_TRUE(why.contains(QStringLiteral("ENAME"))) << why.toStdString();
  EXPECT_EQ(employees(), QStringLiteral("2"));
  EXPECT_EQ(departments(), QStringLiteral("1"));
  EXPECT_EQ(pictures(), 3);
}

TEST_F(RosterWriting, AFullDiskOrAPictureThatWentLeavesNothing) {
  writeThree();
  RosterCheck check = checked(true);
  {
    const support::FullDisk disk(16);
    EXPECT_TRUE(support::thrown([&] { std::ignore = RosterImport(check).run(m_creating); })
                    .description()
                    .contains(QStringLiteral("照片的副本无法写入")));
  }
  QFile::remove(picture(QStringLiteral("B2.jpg")));
  EXPECT_EQ(support::thrownNumber([&] { std::ignore = RosterImport(check).run(m_creating); }),
            runtime::ErrorNumber::FileNotFound);
  EXPECT_EQ(employees(), QStringLiteral("1"));
  EXPECT_EQ(pictures(), 2);
}

TEST_F(RosterWriting, WhatOthersWroteMeanwhileCounts) {
  writeThree();
  RosterCheck check = checked(true);
  // Once the pictures are ready, before the write lock is taken.
  const AtStep listener(3, [this] {
    home.insertEmployee(QStringLiteral("C1"), QStringLiteral("后来者"), 1, "x",
                        QStringLiteral("333333333333333"));
  });
  const QString why =
      support::thrown([&] { std::ignore = RosterImport(check).run(m_creating); }).description();
  EXPECT_TRUE(why.contains(QStringLiteral("第 4 行：条码“333333333333333”已由员工“C1”使用")));
  EXPECT_EQ(employees(), QStringLiteral("2"));
}

TEST_F(RosterWriting, NewBarcodesAreNoneThatALaterLineGives) {
  constexpr std::uint64_t start = 7;
  const QString first = clsEmployee(runtime::Random(start)).CreateRandomCode();
  addPictures({QStringLiteral("B1"), QStringLiteral("B2")});
  write({QStringLiteral("B1,李四,教务处,,"), QStringLiteral("B2,王五,教务处,,") + first});
  RosterCheck check = checked();
  EXPECT_TRUE(RosterImport(check, runtime::Random(start)).run({}));
  EXPECT_EQ(column(QStringLiteral("EBARCODE"), QStringLiteral("B2")), first);
  EXPECT_NE(column(QStringLiteral("EBARCODE"), QStringLiteral("B1")), first);
}
