#pragma once

#include <gtest/gtest.h>

#include <QBuffer>
#include <QDir>
#include <QImage>
#include <QTemporaryDir>

#include "exchange/RosterCheck.h"
#include "support/Files.h"
#include "support/FixedClock.h"
#include "support/TestHome.h"

/// A home with the department 教务处 (1) and the employee A1 张三, and a user's folders with a roster and
/// pictures.
class Roster : public ::testing::Test {
 protected:
  Roster() {
    EXPECT_TRUE(QDir(m_user.path()).mkdir(QStringLiteral("照片")));
    home.execute(QStringLiteral("INSERT INTO Dept(DNAME) VALUES('教务处')"));
    home.insertEmployee(QStringLiteral("A1"), QStringLiteral("张三"), 1, "old", cardOfA1);
  }

  [[nodiscard]] QString file() const { return m_user.filePath(QStringLiteral("名单.csv")); }
  [[nodiscard]] QString folder() const { return m_user.filePath(QStringLiteral("照片")); }
  [[nodiscard]] QString picture(const QString& name) const { return folder() + u'/' + name; }

  /// Writes the roster: the usual heading, then `lines`.
  void write(const QStringList& lines) const {
    const QString text = QStringLiteral("编号,姓名,部门,录入日期,条码\n") + lines.join(u'\n');
    support::writeFile(file(), text.toUtf8());
  }
  void addPictures(const QStringList& numbers) const {
    for (const QString& number : numbers) {
      support::writeFile(picture(number + QStringLiteral(".jpg")), support::TestHome::tinyJpeg());
    }
  }
  [[nodiscard]] static QByteArray encoded(const QImage& image, const char* format) {
    QBuffer bytes;
    EXPECT_TRUE(image.save(&bytes, format));
    return bytes.data();
  }

  /// The check of the roster as it stands, judged.
  [[nodiscard]] RosterCheck checked(bool createDepartments = false) const {
    RosterCheck check(file(), folder());
    EXPECT_TRUE(check.checkPhotos());
    check.judge(createDepartments);
    return check;
  }
  /// What becomes of each line.
  [[nodiscard]] QStringList outcomes(bool createDepartments = false) const {
    const RosterCheck check = checked(createDepartments);
    QStringList texts;
    for (const RosterLine& line : check.lines()) texts.append(line.outcome());
    return texts;
  }

  const QString cardOfA1 = QStringLiteral("111111111111111");
  support::TestHome home;
  support::FixedClock clock{QDateTime(QDate(2026, 11, 5), QTime(9, 30))};

 private:
  QTemporaryDir m_user;
};
