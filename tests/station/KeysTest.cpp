#include <algorithm>
#include <gtest/gtest.h>

#include <QListWidget>

#include "StationWindow.h"

namespace {

/// Keys as the window system hands them on, with the times at which they were pressed.
class Keys : public StationWindow {
 protected:
  struct Press {
    int key;
    qint64 time;
    bool isMarkedRepeated = false;
  };

  /// What the toolkit makes of a scanner that takes `spent` milliseconds from key to key: two equal ones
  /// within one millisecond are marked as held.
  static std::vector<Press> typed(const QString& text, double spent, qint64 begin = 5000) {
    std::vector<Press> presses;
    for (const QChar c : text) {
      const qint64 time = begin + static_cast<qint64>(spent * static_cast<double>(presses.size()));
      const int key = c == u'\n' ? static_cast<int>(Qt::Key_Return) : static_cast<int>(c.unicode());
      const bool isDoubled = !presses.empty() && presses.back().key == key && presses.back().time == time;
      presses.push_back({key, time, isDoubled});
    }
    return presses;
  }
  /// A key that is held from `begin` on, as a desktop repeats it.
  static std::vector<Press> held(QChar character, qint64 begin, int delay, int interval, int count) {
    std::vector<Press> presses{{character.unicode(), begin, false}};
    for (int i = 0; i < count; ++i)
      presses.push_back({character.unicode(), begin + delay + i * interval, true});
    return presses;
  }
  /// Lets the window find all of them in its queue, as after a time in which it was kept busy.
  void press(const std::vector<Press>& presses) {
    for (const Press& press : presses) {
      const QString text = press.key == Qt::Key_Return ? QStringLiteral("\r") : QString(QChar(press.key));
      auto* event = new QKeyEvent(QEvent::KeyPress, press.key, Qt::NoModifier, text, press.isMarkedRepeated);
      event->setTimestamp(static_cast<quint64>(press.time));
      QCoreApplication::postEvent(&form(), event);
    }
    QCoreApplication::sendPostedEvents(&form(), QEvent::KeyPress);
  }
  void endOfScan() { ring("tmrPauseEnd"); }
  QStringList scans() {
    QStringList texts;
    const auto& list = control<QListWidget>("lstScans");
    for (int row = list.count() - 1; row >= 0; --row) texts.append(list.item(row)->text().mid(10));
    return texts;
  }
  static QString unknown(const QString& code) { return QStringLiteral("未登记的卡号：") + code; }
};

TEST_F(Keys, DoubledDigitsOfABurstAreDigitsOfTheirOwn) {
  const QString doubled = QStringLiteral("003377744411100");
  for (const double spent : {0.0, 0.3, 1.0, 4.0, 20.0}) {
    press(typed(doubled + u'\n', spent));
    EXPECT_EQ(scans().constLast(), unknown(doubled)) << spent;
  }
  press(typed(first + u'\n' + second + u'\n', 0));
  EXPECT_EQ(storedRows(), QStringLiteral("2"));
}

TEST_F(Keys, DoubledDigitsAreTakenWhereOneCardMeetsTheNext) {
  const QString endsWithSeven = QStringLiteral("300000000000077");
  const QString beginsWithSeven = QStringLiteral("770000000000003");
  press(typed(endsWithSeven + beginsWithSeven, 0));
  endOfScan();
  EXPECT_EQ(scans(), (QStringList{unknown(endsWithSeven), unknown(beginsWithSeven)}));
}

TEST_F(Keys, AStallOfTheMachineBetweenTwoEqualDigitsLosesNone) {
  std::vector<Press> presses = typed(first, 0);
  for (std::size_t i = 6; i < presses.size(); ++i) presses[i].time += 90;
  press(presses);
  endOfScan();
  EXPECT_EQ(storedRows(), QStringLiteral("1"));
}

TEST_F(Keys, AHeldKeyIsOneKeyHoweverADesktopRepeatsIt) {
  for (const auto& [delay, interval] : {std::pair{660, 40}, {250, 33}, {100, 10}, {200, 1}}) {
    press(held(u'5', 5000, delay, interval, 40));
    endOfScan();
    EXPECT_EQ(scans().constLast(), unknown(QStringLiteral("5"))) << delay;
  }
  // It was pressed while another window had the keys.
  const auto before = scans();
  std::vector<Press> repeats = held(u'8', 100000, 500, 30, 20);
  repeats.erase(repeats.begin());
  press(repeats);
  endOfScan();
  EXPECT_EQ(scans(), before);
}

TEST_F(Keys, AHeldKeyDoesNotMixIntoACard) {
  std::vector<Press> presses = typed(first, 10);
  for (const qint64 time : {5001, 5041, 5081, 5121}) presses.push_back({'9', time, true});
  std::stable_sort(presses.begin(), presses.end(),
                   [](const Press& a, const Press& b) { return a.time < b.time; });
  press(presses);
  endOfScan();
  EXPECT_EQ(storedRows(), QStringLiteral("1"));
}

}  // namespace
