#include <gtest/gtest.h>

#include <QBuffer>
#include <QFileInfo>
#include <QPainter>
#include <QPdfWriter>
#include <QTest>

#include "CupsServer.h"
#include "spooler/CupsHost.h"
#include "support/PdfText.h"
#include "support/Thrown.h"

using spooler::CupsHost;
using spooler::JobState;

namespace {

const QString queue = QStringLiteral("office");

class CupsHostTest : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!CupsServer::isInstalled()) GTEST_SKIP() << "cups is not installed";
    server.emplace();
    host.emplace(server->socket());
    server->addQueue(queue, {QStringLiteral("Letter"), QStringLiteral("A4")});
  }

  std::optional<int> submit(const spooler::Progress& progress = [](qint64, qint64) { return true; }) {
    spooler::Job job;
    job.queue = queue;
    // Longer than names may be, and not to be cut in the middle of a character.
    job.title = QStringLiteral("a") + QString(200, QChar(u'卡'));
    job.media = QStringLiteral("iso_a4_210x297mm");
    QBuffer pdf(&document);
    pdf.open(QIODevice::ReadOnly);
    return host->submit(job, pdf, progress);
  }
  QString refusal() {
    return support::thrown([this] { std::ignore = submit(); }).description();
  }
  bool becomes(int job, JobState state) {
    return QTest::qWaitFor([this, job, state] { return host->report(queue, job).state == state; }, 10'000);
  }

  QByteArray document = emptyPages();
  std::optional<CupsServer> server;
  std::optional<CupsHost> host;

 private:
  static QByteArray emptyPages() {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    QPainter painter(&writer);
    painter.drawRect(100, 100, 100, 100);
    painter.end();
    // Comments behind the end, so that it goes over in several portions.
    return bytes + "\n%" + QByteArray(300'000, ' ') + "\n%%EOF\n";
  }
};

}  // namespace

TEST(CupsHostWithoutService, HasNoQueuesAndSaysWhyNothingGoes) {
  CupsHost host(QStringLiteral("/nowhere/cups.sock"));
  EXPECT_TRUE(host.queues().empty());
  const auto told = [](const auto& action) { return support::thrown(action).description(); };
  EXPECT_TRUE(
      told([&host] { std::ignore = host.details(queue); }).contains(QStringLiteral("连接不上打印服务")));
  EXPECT_TRUE(
      told([&host] { std::ignore = host.report(queue, 1); }).contains(QStringLiteral("连接不上打印服务")));
}

TEST_F(CupsHostTest, QueuesSayWhatTheyCanDoAndHowTheyAre) {
  server->addQueue(QStringLiteral("small"), {QStringLiteral("A5")});
  server->run(QStringLiteral("lpadmin"), {QStringLiteral("-d"), QStringLiteral("small")});
  server->run(QStringLiteral("lpadmin"),
              {QStringLiteral("-p"), queue, QStringLiteral("-D"), QStringLiteral("二楼办公室"),
               QStringLiteral("-o"), QStringLiteral("sides-default=two-sided-long-edge")});
  const std::vector<spooler::Queue> queues = host->queues();
  ASSERT_EQ(queues.size(), 2U);
  EXPECT_EQ(queues[0].name, queue);
  EXPECT_EQ(queues[0].description, QStringLiteral("二楼办公室"));
  EXPECT_FALSE(queues[0].isDefault);
  EXPECT_TRUE(queues[1].isDefault);

  spooler::Details details = host->details(queue);
  EXPECT_EQ(details.papers.size(), 2U);
  EXPECT_EQ(details.defaultMedia, QStringLiteral("na_letter_8.5x11in"));
  EXPECT_TRUE(details.twoSided);
  EXPECT_EQ(details.sides, spooler::Sides::LongEdge);
  EXPECT_TRUE(details.choosesColor);
  EXPECT_GT(details.maximumCopies, 100);
  EXPECT_TRUE(details.accepting);
  EXPECT_FALSE(details.stopped);

  server->run(QStringLiteral("cupsreject"), {queue});
  server->run(QStringLiteral("cupsdisable"), {queue});
  details = host->details(queue);
  EXPECT_FALSE(details.accepting);
  EXPECT_TRUE(details.stopped);
}

TEST_F(CupsHostTest, EveryRefusalIsToldByItsReason) {
  server->run(QStringLiteral("cupsreject"), {queue});
  EXPECT_EQ(refusal(), QStringLiteral("打印机“office”现在不接受打印任务。"));
  server->run(QStringLiteral("lpadmin"), {QStringLiteral("-x"), queue});
  EXPECT_EQ(refusal(), QStringLiteral("打印机“office”已经不存在。"));
  server->kill();
  EXPECT_TRUE(refusal().contains(QStringLiteral("连接不上打印服务"))) << refusal().toStdString();
}

TEST_F(CupsHostTest, AQueueThatGoesWhileTheDocumentIsHandedOverIsTold) {
  const auto told = support::thrown([this] {
    std::ignore = submit([this](qint64 done, qint64) {
      if (done > 100'000) server->kill();
      return true;
    });
  });
  EXPECT_TRUE(told.description().contains(QStringLiteral("打印服务"))) << told.description().toStdString();
  EXPECT_FALSE(QFileInfo::exists(server->printed(queue)));
}

TEST_F(CupsHostTest, AStoppedHandOverLeavesNothingToPrint) {
  int calls = 0;
  const auto stopAfter = [&calls](int limit) {
    calls = 0;
    return [&calls, limit](qint64, qint64) { return calls++ < limit; };
  };
  for (const int limit : {0, 2, 5}) EXPECT_FALSE(submit(stopAfter(limit))) << limit;
  EXPECT_TRUE(server->isDone(queue));
  EXPECT_FALSE(QFileInfo::exists(server->printed(queue)));
  const std::optional<int> whole = submit();
  ASSERT_TRUE(whole);
  EXPECT_TRUE(becomes(*whole, JobState::Done));
  EXPECT_EQ(support::firstPageOf(server->printed(queue)).paper.toSize(), QSize(595, 842));
}

TEST_F(CupsHostTest, AJobIsFollowedToItsEnd) {
  server->run(QStringLiteral("cupsdisable"), {QStringLiteral("-r"), QStringLiteral("换硒鼓"), queue});
  const std::optional<int> waiting = submit();
  ASSERT_TRUE(waiting);
  EXPECT_TRUE(becomes(*waiting, JobState::Stopped));
  EXPECT_TRUE(host->report(queue, *waiting).reason.contains(QStringLiteral("换硒鼓")));
  server->run(QStringLiteral("cancel"), {QString::number(*waiting)});
  EXPECT_TRUE(becomes(*waiting, JobState::Cancelled));
  server->run(QStringLiteral("cupsenable"), {queue});
  document = "%PDF-1.4\nnothing of a PDF";
  const std::optional<int> broken = submit();
  ASSERT_TRUE(broken);
  EXPECT_TRUE(becomes(*broken, JobState::Failed));
  EXPECT_TRUE(host->report(queue, *broken).reason.contains(QStringLiteral("驱动程序出错")));
  EXPECT_EQ(host->report(queue, *broken + 1000).state, JobState::Done) << "nobody knows it any more";
}
