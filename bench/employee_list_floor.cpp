// The floor under employee_list: a loop over the same engine that reads the same rows, writes the same photo
// files and deletes them. Prints the seconds that took.

#include <chrono>
#include <cstdio>
#include <fcntl.h>
#include <string>
#include <unistd.h>
#include <vector>

#define SQLITE_HAS_CODEC 1
#include <sqlcipher/sqlite3.h>

namespace {

struct Row {
  std::string number;
  std::string name;
  std::string department;
  std::string barcode;
  std::string date;
  int id = 0;
  int did = 0;
  std::string photo;
};

std::string textOf(sqlite3_stmt* statement, int column) {
  const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
  return text == nullptr ? std::string() : std::string(text);
}

bool writeFile(const std::string& path, const void* bytes, int size) {
  const int file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
  if (file < 0) return false;
  const bool written = ::write(file, bytes, static_cast<std::size_t>(size)) == size;
  return ::close(file) == 0 && written;
}

sqlite3* opened(const std::string& path) {
  sqlite3* database = nullptr;
  if (sqlite3_open_v2(path.c_str(), &database, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK) return nullptr;
  sqlite3_key(database, "polnax", 6);
  for (const char* setting :
       {"PRAGMA cipher_compatibility=3", "PRAGMA cipher_page_size=4096", "PRAGMA cache_size=-16000"}) {
    sqlite3_exec(database, setting, nullptr, nullptr, nullptr);
  }
  return database;
}

bool load(sqlite3* database, const std::string& directory, std::vector<Row>& rows) {
  sqlite3_stmt* statement = nullptr;
  const char* query =
      "SELECT Employee.ID, ENUMBER, ENAME, DID, EBARCODE, ENTERDATE, HEADIMG, Dept.DNAME "
      "from Employee, Dept where Employee.DID = Dept.ID";
  if (sqlite3_prepare_v2(database, query, -1, &statement, nullptr) != SQLITE_OK) return false;
  while (sqlite3_step(statement) == SQLITE_ROW) {
    Row& row = rows.emplace_back();
    row.id = sqlite3_column_int(statement, 0);
    row.number = textOf(statement, 1);
    row.name = textOf(statement, 2);
    row.did = sqlite3_column_int(statement, 3);
    row.barcode = textOf(statement, 4);
    row.date = textOf(statement, 5);
    row.department = textOf(statement, 7);
    row.photo = directory + '/' + row.number + ".jpg";
    const void* photo = sqlite3_column_blob(statement, 6);
    if (!writeFile(row.photo, photo, sqlite3_column_bytes(statement, 6))) return false;
  }
  return sqlite3_finalize(statement) == SQLITE_OK;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  const std::string directory = argv[1];
  const auto start = std::chrono::steady_clock::now();
  sqlite3* database = opened(directory + "/vorlent.dat");
  std::vector<Row> rows;
  if (database == nullptr || !load(database, directory, rows)) return 1;
  for (const Row& row : rows) ::unlink(row.photo.c_str());
  sqlite3_close(database);
  const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
  std::printf("seconds %.4f\nrows %zu\n", taken.count(), rows.size());
  return rows.empty() ? 1 : 0;
}
