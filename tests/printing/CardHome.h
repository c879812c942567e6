#pragma once

#include <gtest/gtest.h>
#include <memory>

#include <QTemporaryDir>

#include "../graphics/PictureBytes.h"
#include "records/clsEmployeeSet.h"
#include "runtime/ProgramDirectory.h"
#include "support/Files.h"

/// A program directory without a database: settings and photo files only.
class CardHome : public ::testing::Test {
 public:
  CardHome() { runtime::setAppPath(m_directory.path()); }
  ~CardHome() override { runtime::setAppPath({}); }

 protected:
  [[nodiscard]] QString file(const QString& name) const { return m_directory.filePath(name); }

  QString write(const QString& name, const QByteArray& bytes) const {
    support::writeFile(file(name), bytes);
    return file(name);
  }

  /// An employee whose photo file holds `photo`; the object deletes that file.
  [[nodiscard]] std::shared_ptr<clsEmployee> employee(const QString& number, const QString& name,
                                                      const QByteArray& photo) const {
    auto made = std::make_shared<clsEmployee>();
    made->setENUMBER(number);
    made->setENAME(name);
    made->setDNAME(QStringLiteral("教务处"));
    made->setEBARCODE(QStringLiteral("123456789012345"));
    made->setHeadImg(write(number + QStringLiteral(".jpg"), photo));
    return made;
  }

  /// Employees 1 to `count`, with photos.
  [[nodiscard]] std::shared_ptr<clsEmployeeSet> employees(int count) const {
    auto set = std::make_shared<clsEmployeeSet>();
    const QByteArray photo = pictureBytes("jpg", {90, 120});
    for (int i = 1; i <= count; ++i) {
      set->Add(employee(QStringLiteral("G%1").arg(i), QStringLiteral("员工%1").arg(i), photo));
    }
    return set;
  }

 private:
  QTemporaryDir m_directory;
};
