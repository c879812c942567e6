#pragma once

#include <functional>
#include <memory>

#include <QSet>
#include <QString>

#include "ado/Connection.h"

namespace ado {
class Field;
class Recordset;
}  // namespace ado

namespace cli {

/// Looks for what the programs would stumble over. Photos are read one at a time.
class DatabaseCheck {
 public:
  using Report = std::function<void(const QString& finding)>;

  /// Every finding is told to `report` as it is found, as one line.
  DatabaseCheck(std::shared_ptr<ado::Connection> connection, Report report);

  /// Throws ado::AdoError when the data cannot be read.
  void run();
  /// How many rows there are.
  [[nodiscard]] QString summary() const;

 private:
  void checkPages();
  void checkDepartments();
  void checkEmployees();
  void checkEmployee(ado::Recordset& rows);
  void checkNumber(const QString& who, const QString& number);
  void checkPhoto(const QString& who, const ado::Field& photo);
  /// The IDs of employees that share their value of `column` with another one.
  [[nodiscard]] QSet<int> sharing(const QString& column) const;

  std::shared_ptr<ado::Connection> m_connection;
  Report m_report;
  QSet<qint64> m_departments;
  QSet<int> m_sameNumber;
  QSet<int> m_sameBarcode;
};

}  // namespace cli
