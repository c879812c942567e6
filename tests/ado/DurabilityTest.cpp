#include <array>
#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>

#include "ado/AdoFile.h"

namespace {

/// Another process that writes pairs of rows, one transaction a pair, and acknowledges each by a byte in a
/// pipe, until it is killed.
class Writer {
 public:
  explicit Writer(const std::function<void(int)>& writePair, int first) {
    std::array<int, 2> ends{};
    if (::pipe(ends.data()) != 0) return;
    m_child = ::fork();
    if (m_child == 0) {
      ::close(ends[0]);
      writeForever(writePair, first, ends[1]);
    }
    ::close(ends[1]);
    m_read = ends[0];
  }
  Writer(const Writer&) = delete;
  Writer& operator=(const Writer&) = delete;
  ~Writer() { ::close(m_read); }

  /// Kills the process some time after its first `least` pairs and gives how many it acknowledged.
  int killAfter(int least, useconds_t microseconds) {
    int acknowledged = 0;
    char byte = 0;
    while (acknowledged < least && ::read(m_read, &byte, 1) == 1) ++acknowledged;
    ::usleep(microseconds);
    ::kill(m_child, SIGKILL);
    ::waitpid(m_child, nullptr, 0);
    while (::read(m_read, &byte, 1) == 1) ++acknowledged;
    return acknowledged;
  }

 private:
  /// Nothing of the child may run on into the tests of the parent.
  [[noreturn]] static void writeForever(const std::function<void(int)>& writePair, int first, int pipe) {
    try {
      for (int pair = first;; ++pair) {
        writePair(pair);
        if (::write(pipe, "+", 1) != 1) ::_exit(1);
      }
    } catch (const std::exception&) {
      ::_exit(2);
    }
  }

  pid_t m_child = -1;
  int m_read = -1;
};

class Durability : public AdoFile {
 protected:
  void writePair(int pair) {
    if (connection->State() == ado::ObjectState::Closed) connection->Open(connectionString());
    const QString insert = QStringLiteral("INSERT INTO Dept(DNAME) VALUES('%1')").arg(pair);
    connection->BeginTrans();
    std::ignore = connection->Execute(insert);
    std::ignore = connection->Execute(insert);
    connection->CommitTrans();
  }
};

}  // namespace

TEST_F(Durability, NothingAcknowledgedIsLostWhenTheWriterIsKilled) {
  constexpr int rounds = 15;
  constexpr int least = 3;
  int written = 0;
  for (int round = 0; round < rounds; ++round) {
    connection->Close();  // the child must not share the engine's handle
    Writer writer([this](int pair) { writePair(pair); }, written);
    const int acknowledged = writer.killAfter(least, static_cast<useconds_t>(round) * 700);
    ASSERT_GE(acknowledged, least);
    connection->Open(connectionString());
    const int pairs = column("SELECT COUNT(DISTINCT DNAME) FROM Dept").toInt();
    EXPECT_GE(pairs, written + acknowledged);
    EXPECT_LE(pairs, written + acknowledged + 1) << "only the pair under way may be there besides";
    EXPECT_EQ(column("SELECT DNAME FROM Dept GROUP BY DNAME HAVING COUNT(*) <> 2"), QString());
    written = pairs;
  }
  EXPECT_EQ(connection->CheckPages(), QStringList());
  writePair(written);  // a journal that the last writer had only begun stays until the next change
  EXPECT_EQ(QDir(directory.path()).entryList(QDir::Files), QStringList{QStringLiteral("vorlent.dat")});
}

TEST_F(Durability, ACopyIsTakenWhileAnotherProcessWrites) {
  constexpr useconds_t pause = 2000;
  store::SqlCipherEngine patient;
  store::installEngine(&patient);
  connection->Close();
  Writer writer(
      [this](int pair) {
        writePair(pair);
        ::usleep(pause);
      },
      0);
  auto other = connect();
  other->CopyTo(file("copy.dat"));
  EXPECT_GE(writer.killAfter(1, 0), 1);
  ado::Connection copy;
  copy.Open(QStringLiteral("PROVIDER=Microsoft.Jet.OLEDB.4.0;Data Source=") + file("copy.dat") +
            QStringLiteral(";Jet OLEDB:Database password=secret"));
  EXPECT_EQ(copy.CheckPages(), QStringList());
  EXPECT_EQ(copy.Execute(QStringLiteral("DELETE FROM Dept")) % 2, 0) << "half a transaction was copied";
}
