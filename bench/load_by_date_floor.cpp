// The floor under load_by_date: the engine's own calls read the same rows into as many strings and dates.
// Prints the seconds that took, without opening the database.

#include <chrono>
#include <cstdio>
#include <vector>

#include <QDateTime>

#include "BareDatabase.h"

namespace {

struct Row {
  std::string number;
  std::string name;
  QDateTime entered;
  QDateTime left;
};

QDateTime momentOf(sqlite3_stmt* statement, int column) {
  const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
  if (text == nullptr || sqlite3_column_bytes(statement, column) < 19) return {};
  const auto number = [text](int at) { return (text[at] - '0') * 10 + (text[at + 1] - '0'); };
  return QDateTime(QDate(number(0) * 100 + number(2), number(5), number(8)),
                   QTime(number(11), number(14), number(17)));
}

}  // namespace

int main(int argc, char** argv) {
  sqlite3* database = argc == 3 ? bare::opened(argv[1]) : nullptr;
  if (database == nullptr) return 2;
  // Opens the file, which takes longer than the rest.
  sqlite3_exec(database, "SELECT COUNT(*) FROM sqlite_master", nullptr, nullptr, nullptr);

  const auto start = std::chrono::steady_clock::now();
  std::vector<Row> rows;
  sqlite3_stmt* query = bare::prepared(
      database,
      "SELECT Employee.ENAME, Presence.ENUMBER, ENTERTIME, EXITTIME from Presence, Employee"
      " WHERE Employee.ENUMBER = Presence.ENUMBER AND ENTERTIME >= ?1 AND ENTERTIME < date(?1, '+22 days')");
  sqlite3_bind_text(query, 1, argv[2], -1, SQLITE_STATIC);
  while (sqlite3_step(query) == SQLITE_ROW) {
    rows.push_back({bare::textOf(query, 1), bare::textOf(query, 0), momentOf(query, 2), momentOf(query, 3)});
  }
  sqlite3_finalize(query);
  const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
  std::printf("seconds %.4f\nrows %zu\n", taken.count(), rows.size());
  return sqlite3_close(database) == SQLITE_OK ? 0 : 1;
}
