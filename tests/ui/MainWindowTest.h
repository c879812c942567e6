#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <QItemSelectionModel>
#include <QLabel>
#include <QTreeView>

#include "support/RecordingShell.h"
#include "support/ScriptedBoxes.h"
#include "support/TestHome.h"
#include "ui/frmMain.h"

/// A main window over a home with the departments 1 财务部, 2 人事部, 3 空部门 and five employees in the
/// first two. The window is not shown and its list not loaded yet.
class MainWindow : public ::testing::Test {
 protected:
  MainWindow() {
    for (const auto* name : {u"财务部", u"人事部", u"空部门"}) addDepartment(QString::fromUtf16(name));
    for (int i = 1; i <= 5; ++i) addEmployee(QStringLiteral("A00%1").arg(i), 1 + i % 2);
  }

  int execute(const QString& sql) { return m_connection->Execute(sql); }
  void addDepartment(const QString& name) {
    execute(QStringLiteral("INSERT INTO Dept(DNAME) VALUES('%1')").arg(name));
  }
  void addEmployee(const QString& number, int department,
                   const QByteArray& photo = support::TestHome::tinyJpeg()) {
    home.insertEmployee(number, QStringLiteral("员工") + number, department, photo,
                        QStringLiteral("12345678901") + number, m_connection);
  }

  [[nodiscard]] QAction& action(const char* name) const {
    auto* found = window.findChild<QAction*>(QLatin1String(name));
    EXPECT_NE(found, nullptr) << name;
    return *found;
  }
  void choose(const char* name) const { action(name).trigger(); }

  [[nodiscard]] QTreeView& list() const { return *window.findChild<QTreeView*>(QStringLiteral("lsvData")); }
  void select(std::initializer_list<int> rows) const {
    list().clearSelection();
    for (const int row : rows) {
      list().selectionModel()->select(list().model()->index(row, 0),
                                      QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }
  }
  /// The texts of a column, top row first.
  [[nodiscard]] QStringList column(int column) const {
    QStringList texts;
    const QAbstractItemModel& rows = *list().model();
    for (int row = 0; row < rows.rowCount(); ++row) texts.append(rows.index(row, column).data().toString());
    return texts;
  }
  [[nodiscard]] QStringList headers() const {
    QStringList texts;
    const QAbstractItemModel& rows = *list().model();
    for (int i = 0; i < rows.columnCount(); ++i) texts.append(rows.headerData(i, Qt::Horizontal).toString());
    return texts;
  }
  [[nodiscard]] QString label(const char* name) const {
    return window.findChild<QLabel*>(QLatin1String(name))->text();
  }
  [[nodiscard]] QString counts() const { return label("lblCounts"); }
  [[nodiscard]] QString note() const { return label("lblNote"); }

  support::TestHome home;
  support::ScriptedBoxes boxes;
  support::RecordingShell desktop;
  frmMain window;

 private:
  std::shared_ptr<ado::Connection> m_connection = home.connect();
};
