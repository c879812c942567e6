#pragma once

#include <algorithm>
#include <cstring>
#include <string>
#include <strings.h>

#define SQLITE_HAS_CODEC 1
#include <sqlcipher/sqlite3.h>

/// The engine's own calls on a home's database, for the floors.
namespace bare {

/// Enough of the collation for numbers in plain letters and digits.
inline int compare(void*, int leftSize, const void* left, int rightSize, const void* right) {
  const auto size = static_cast<std::size_t>(std::min(leftSize, rightSize));
  const int order = strncasecmp(static_cast<const char*>(left), static_cast<const char*>(right), size);
  return order != 0 ? order : leftSize - rightSize;
}

/// The open database, or null.
inline sqlite3* opened(const std::string& home) {
  sqlite3* database = nullptr;
  if (sqlite3_open_v2((home + "/vorlent.dat").c_str(), &database, SQLITE_OPEN_READWRITE, nullptr) !=
      SQLITE_OK) {
    return nullptr;
  }
  sqlite3_key(database, "polnax", 6);
  sqlite3_create_collation(database, "JET", SQLITE_UTF8, nullptr, compare);
  for (const char* setting :
       {"PRAGMA cipher_compatibility=3", "PRAGMA cipher_page_size=4096", "PRAGMA journal_mode=DELETE",
        "PRAGMA synchronous=EXTRA", "PRAGMA cache_size=-16000"}) {
    sqlite3_exec(database, setting, nullptr, nullptr, nullptr);
  }
  return database;
}

/// The statement, or null.
inline sqlite3_stmt* prepared(sqlite3* database, const char* sql) {
  sqlite3_stmt* statement = nullptr;
  return sqlite3_prepare_v2(database, sql, -1, &statement, nullptr) == SQLITE_OK ? statement : nullptr;
}

inline std::string textOf(sqlite3_stmt* statement, int column) {
  const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
  return text == nullptr ? std::string() : std::string(text);
}

}  // namespace bare
