// The floor under sign_in: COUNT durable insertions by one prepared statement into the table of a home.
// Prints the seconds that took.

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "BareDatabase.h"

namespace {

std::vector<std::string> column(sqlite3* database, const char* sql) {
  std::vector<std::string> values;
  sqlite3_stmt* statement = bare::prepared(database, sql);
  while (sqlite3_step(statement) == SQLITE_ROW) values.push_back(bare::textOf(statement, 0));
  sqlite3_finalize(statement);
  return values;
}

}  // namespace

int main(int argc, char** argv) {
  sqlite3* database = argc == 3 ? bare::opened(argv[1]) : nullptr;
  if (database == nullptr) return 2;
  auto people = column(database, "SELECT ENUMBER FROM Employee");
  people.resize(std::min<std::size_t>(people.size(), std::strtoul(argv[2], nullptr, 10)));
  const auto morning =
      column(database, "SELECT date(MAX(ENTERTIME), '+1 days') || ' 08:00:00' FROM Presence").front();
  sqlite3_stmt* insertion = bare::prepared(database, "INSERT INTO Presence(ENUMBER, ENTERTIME) VALUES(?, ?)");

  const auto start = std::chrono::steady_clock::now();
  for (const std::string& number : people) {
    sqlite3_bind_text(insertion, 1, number.c_str(), -1, SQLITE_STATIC);
    sqlite3_bind_text(insertion, 2, morning.c_str(), -1, SQLITE_STATIC);
    if (sqlite3_step(insertion) != SQLITE_DONE) return 1;
    sqlite3_reset(insertion);
  }
  const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
  sqlite3_finalize(insertion);
  std::printf("seconds %.4f\n", taken.count());
  return sqlite3_close(database) == SQLITE_OK ? 0 : 1;
}
