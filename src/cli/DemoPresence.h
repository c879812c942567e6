#pragma once

#include <vector>

#include <QDate>

#include "ado/Connection.h"
#include "cli/DemoPeople.h"

namespace cli {

/// Monday to Friday between the two days, both included.
[[nodiscard]] std::vector<QDate> workingDays(const QDate& first, const QDate& last);
/// Inserts a sign-in record for every person and day, with some days missed and some sign-outs forgotten.
/// Returns how many were inserted. Throws ado::AdoError.
int insertPresence(ado::Connection& connection, const std::vector<DemoPerson>& people,
                   const std::vector<QDate>& days);

}  // namespace cli
