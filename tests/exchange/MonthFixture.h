#pragma once

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "attendance/MonthData.h"
#include "runtime/DefaultText.h"

/// November 2026 of a unit with the employees 001 (three days), B2 (one day without sign-out) and C3
/// (absent); X9 has records but stands in no list.
class MonthFixture : public ::testing::Test {
 protected:
  MonthFixture() {
    auto zhang = presence->Add(QStringLiteral("001"), QStringLiteral("张三"), QStringLiteral("001"));
    zhang->AddPresence(at(2, {8, 5, 59}), at(2, {17, 30}));
    zhang->AddPresence(at(3, {7, 59}), runtime::zeroDateTime());
    zhang->AddPresence(at(30, {9, 0}), at(30, {18, 1}));
    presence->Add(QStringLiteral("b2"), QStringLiteral("李,\"四\""), QStringLiteral("b2"))
        ->AddPresence(at(1, {0, 0}), runtime::zeroDateTime());
    presence->Add(QStringLiteral("X9"), QStringLiteral("外"), QStringLiteral("X9"))
        ->AddPresence(at(9, {10, 0}), at(9, {11, 0}));
  }

  static QDateTime at(int day, const QTime& time) { return {QDate(2026, 11, day), time}; }
  [[nodiscard]] QString file(const QString& name) const { return m_directory.filePath(name); }

  std::shared_ptr<clsEmployeePresenceSet> presence = std::make_shared<clsEmployeePresenceSet>();
  MonthData data{*AttendanceMonth::make(2026, 11),
                 QStringLiteral("青禾"),
                 presence,
                 {{QStringLiteral("C3"), QStringLiteral("王五")},
                  {QStringLiteral("001"), QStringLiteral("张三")},
                  {QStringLiteral("B2"), QStringLiteral("李四")}},
                 {}};

 private:
  QTemporaryDir m_directory;
};
