// The floor under bench_xml export: the same rows by the engine's calls, their photos in hexadecimal, into a
// file that is synced and renamed. Prints the seconds that took.

#include <chrono>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

#include "BareDatabase.h"

namespace {

void appendHex(std::string& text, const unsigned char* bytes, int size) {
  static const char digits[] = "0123456789abcdef";
  for (int i = 0; i < size; ++i) {
    text += digits[bytes[i] >> 4];
    text += digits[bytes[i] & 15];
  }
}

bool writeRows(sqlite3* database, int file) {
  sqlite3_stmt* statement = bare::prepared(database, "SELECT * FROM Employee");
  if (statement == nullptr) return false;
  std::string text;
  while (sqlite3_step(statement) == SQLITE_ROW) {
    text.clear();
    for (int column = 0; column < sqlite3_column_count(statement); ++column) {
      if (sqlite3_column_type(statement, column) == SQLITE_BLOB) {
        appendHex(text, static_cast<const unsigned char*>(sqlite3_column_blob(statement, column)),
                  sqlite3_column_bytes(statement, column));
      } else {
        text += bare::textOf(statement, column);
      }
      text += ' ';
    }
    if (::write(file, text.data(), text.size()) != static_cast<ssize_t>(text.size())) return false;
  }
  return sqlite3_finalize(statement) == SQLITE_OK;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  const auto start = std::chrono::steady_clock::now();
  const std::string path = argv[2];
  const std::string aside = path + ".new";
  sqlite3* database = bare::opened(argv[1]);
  const int file = ::open(aside.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
  if (database == nullptr || file < 0 || !writeRows(database, file)) return 1;
  if (::fsync(file) != 0 || ::close(file) != 0 || std::rename(aside.c_str(), path.c_str()) != 0) return 1;
  sqlite3_close(database);
  const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
  std::printf("seconds %.4f\n", taken.count());
  return 0;
}
