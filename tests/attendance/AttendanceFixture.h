#pragma once

#include <gtest/gtest.h>

#include "support/FixedClock.h"
#include "support/TestHome.h"

/// A clean program on 2026-11-16, with the employees A1 and A2.
class AttendanceTest : public ::testing::Test {
 protected:
  AttendanceTest() {
    m_home.insertEmployee(QStringLiteral("A1"), QStringLiteral("张三"), 1, {}, {}, m_connection);
    m_home.insertEmployee(QStringLiteral("A2"), QStringLiteral("李四"), 1, {}, {}, m_connection);
  }

  [[nodiscard]] static QDateTime moment(int day, int hour, int minute, int second = 0, int msec = 0) {
    return {QDate(2026, 11, day), QTime(hour, minute, second, msec)};
  }

  void setTime(int hour, int minute, int second = 0, int msec = 0) {
    m_clock.set(moment(16, hour, minute, second, msec));
  }

  /// A row of Presence; an empty `left` is Null.
  void insert(const QString& number, const QString& entered, const QString& left = {}) const {
    const QString exit = left.isEmpty() ? QStringLiteral("NULL") : u'\'' + left + u'\'';
    ASSERT_EQ(m_connection->Execute(
                  QStringLiteral("INSERT INTO Presence(ENUMBER, ENTERTIME, EXITTIME) VALUES('%1','%2',%3)")
                      .arg(number, entered, exit)),
              1);
  }

  /// All rows as text, in the order of their arrival.
  [[nodiscard]] std::string rows() const {
    return m_home
        .single(QStringLiteral("SELECT group_concat(ENUMBER || ' ' || ENTERTIME || ' ' || "
                               "ifnull(EXITTIME, '-'), '; ') FROM "
                               "(SELECT * FROM Presence ORDER BY ENTERTIME)"))
        .toStdString();
  }

  support::TestHome m_home;
  std::shared_ptr<ado::Connection> m_connection = m_home.connect();
  support::FixedClock m_clock{moment(16, 8, 0)};
};
