#pragma once

#include <cstdint>
#include <vector>

#include <QDate>
#include <QString>
#include <QStringList>

#include "cli/Portrait.h"

namespace cli {

/// An invented employee.
struct DemoPerson {
  QString number;
  QString name;
  /// Position in demoDepartments(), from 1: the number that an empty database gives it.
  int department = 0;
  QString barcode;
  QDate entered;
  Face face;
};

[[nodiscard]] QStringList demoDepartments();
/// `count` people, numbered A0001 and on, who were entered in the three years before `today`. A person's
/// number, name, department and face do not depend on the other arguments.
[[nodiscard]] std::vector<DemoPerson> demoPeople(int count, const QDate& today);

}  // namespace cli
