#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>

#include "SampleReport.h"
#include "preview/PageView.h"
#include "preview/PreviewToolbar.h"
#include "preview/PreviewWindow.h"
#include "support/ScriptedBoxes.h"

using preview::PreviewToolbar;

/// The preview of a document, with its parts at hand and scripted boxes.
class PreviewWindowTest : public ::testing::Test {
 protected:
  void open(const report::Document& document) {
    window = std::make_unique<preview::PreviewWindow>(document, SampleReport(0).Toolbar);
    window->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get())) << "keys reach active windows only";
    toolbar = window->findChild<PreviewToolbar*>(QStringLiteral("toolbar"));
    view = window->findChild<preview::PageView*>(QStringLiteral("view"));
    pageBox = window->findChild<QLineEdit*>(QStringLiteral("txtPage"));
    zoomBox = window->findChild<QComboBox*>(QStringLiteral("cmbZoom"));
    ASSERT_TRUE(toolbar && view && pageBox && zoomBox);
  }

  void use(PreviewToolbar::Place place) const { toolbar->tool(place)->trigger(); }
  void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const {
    QTest::keyClick(view, static_cast<Qt::Key>(key), modifiers);
  }
  QList<int> enabledPlaces() const {
    QList<int> places;
    for (int place = 0; place < toolbar->actions().size(); ++place) {
      const QAction* action = toolbar->actions().at(place);
      if (!action->isSeparator() && action->isEnabled()) places.append(place);
    }
    return places;
  }

  QTemporaryDir directory;
  support::ScriptedBoxes boxes;
  std::unique_ptr<preview::PreviewWindow> window;
  PreviewToolbar* toolbar = nullptr;
  preview::PageView* view = nullptr;
  QLineEdit* pageBox = nullptr;
  QComboBox* zoomBox = nullptr;
};
