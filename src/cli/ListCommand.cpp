#include "cli/ListCommand.h"

#include <algorithm>
#include <array>

#include "ado/Recordset.h"
#include "cli/Cell.h"
#include "cli/Database.h"
#include "runtime/Conversions.h"

namespace cli {

namespace {

struct Listing {
  QLatin1String what;
  QString headings;
  /// The columns in the order of the headings. No photo is among them.
  QString query;
};

const std::array<Listing, 2>& listings() {
  static const std::array<Listing, 2> all{{
      {QLatin1String("employees"), QStringLiteral("编号\t姓名\t部门\t条码\t录入日期"),
       QStringLiteral("SELECT Employee.ENUMBER, Employee.ENAME, Dept.DNAME, Employee.EBARCODE, "
                      "Employee.ENTERDATE FROM Employee LEFT JOIN Dept ON Employee.DID = Dept.ID "
                      "ORDER BY Employee.ENUMBER, Employee.ID")},
      {QLatin1String("departments"), QStringLiteral("部门号\t名称\t人数"),
       QStringLiteral("SELECT Dept.ID, Dept.DNAME, COUNT(Employee.ID) AS EMPLOYEES FROM Dept LEFT JOIN "
                      "Employee ON Employee.DID = Dept.ID GROUP BY Dept.ID, Dept.DNAME ORDER BY Dept.ID")},
  }};
  return all;
}

const Listing* listingOf(const QString& what) {
  const auto found = std::find_if(listings().begin(), listings().end(),
                                  [&what](const Listing& listing) { return listing.what == what; });
  return found == listings().end() ? nullptr : &*found;
}

}  // namespace

QString ListCommand::summary() const {
  return QStringLiteral("列出员工或部门");
}

std::vector<Option> ListCommand::options() {
  return {{.name = QStringLiteral("WHAT"),
           .valueName = QStringLiteral("employees|departments"),
           .help = QStringLiteral("列出员工，或列出部门"),
           .target = &m_what,
           .required = true}};
}

QString ListCommand::usageFault() const {
  if (listingOf(m_what) != nullptr) return {};
  return QStringLiteral("“%1”不是 employees 或 departments").arg(m_what);
}

int ListCommand::run(const Streams& streams) {
  const Listing* listing = listingOf(m_what);
  ado::Recordset rows;
  rows.Open(listing->query, openDatabase());
  streams.out << listing->headings << '\n';
  for (; !rows.IsEOF(); rows.MoveNext()) {
    QStringList cells;
    for (int column = 0; column < rows.FieldCount(); ++column)
      cells.append(cell(runtime::toTextOrEmpty(rows.Fields(column).Value())));
    streams.out << cells.join(u'\t') << '\n';
  }
  return Done;
}

}  // namespace cli
