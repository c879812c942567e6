#pragma once

#include <memory>
#include <vector>

#include <QCoreApplication>
#include <QLabel>
#include <QTest>
#include <QTimer>

#include "StationHome.h"
#include "sound/Sound.h"
#include "station/frmStation.h"
#include "support/ScriptedBoxes.h"

/// Remembers what it was to play. Installed as long as it lives.
class Ear : public sound::Host {
 public:
  Ear() : m_before(sound::installHost(this)) {}
  ~Ear() override { sound::installHost(m_before); }
  void play(const sound::Signal& signal) override { heard.push_back(signal); }

  std::vector<sound::Signal> heard;

 private:
  sound::Host* m_before;
};

/// The window in that home, with scripted boxes.
class StationWindow : public StationHome {
 protected:
  frmStation& form() {
    if (!m_form) {
      m_form = std::make_unique<frmStation>();
      m_form->show();
      QCoreApplication::processEvents();
    }
    return *m_form;
  }
  void scan(const QString& code) {
    QTest::keyClicks(&form(), code);
    QTest::keyClick(&form(), Qt::Key_Return);
  }
  template <typename Control = QLabel>
  Control& control(const char* name) {
    auto* found = form().findChild<Control*>(QLatin1String(name));
    EXPECT_NE(found, nullptr) << name;
    return *found;
  }
  QString text(const char* name) { return control(name).text(); }
  /// Lets the timer's time be over.
  void ring(const char* name) { QMetaObject::invokeMethod(&control<QTimer>(name), "timeout"); }
  void answerIsOver() {
    control<QTimer>("tmrAnswer").stop();
    ring("tmrAnswer");
  }

  Ear ear;
  support::ScriptedBoxes boxes;

 private:
  std::unique_ptr<frmStation> m_form;
};
