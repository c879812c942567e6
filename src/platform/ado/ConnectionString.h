#pragma once

#include <QString>

namespace ado {

/// What a connection string says: `key=value` pairs between semicolons, keys without regard to letter case,
/// a value as it stands or between quotes of either kind.
struct ConnectionString {
  QString dataSource;
  QString password;
};

/// Throws AdoError for a provider other than Jet's and for a string without a data source.
[[nodiscard]] ConnectionString parseConnectionString(const QString& text);

}  // namespace ado
