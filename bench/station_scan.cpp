// Scans cards at the station's window: bench_station_scan HOME CARDS. Prints the medians of a scan, from its
// last key until the answer is painted, and of a sign-in without a window, in turn, and the longest of all of
// them.

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QWindow>

#include "foundation/GlobalDefine.h"
#include "graphics/Fonts.h"
#include "records/CardHolder.h"
#include "records/clsEmployeeSet.h"
#include "runtime/ProgramDirectory.h"
#include "station/frmStation.h"
#include "store/SqlCipherEngine.h"

namespace {

class PaintWatch : public QObject {
 public:
  bool painted = false;
  bool eventFilter(QObject*, QEvent* event) override {
    painted = painted || event->type() == QEvent::Paint;
    return false;
  }
};

QStringList barcodes(int count) {
  clsEmployeeSet employees;
  employees.LoadSet();
  QStringList codes;
  for (int i = 1; i <= std::min<int>(count, employees.Count()); ++i)
    codes.append(employees.Item(i)->EBARCODE());
  return codes;
}

void press(QWidget& window, int key, const QString& text) {
  QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
  QApplication::sendEvent(&window, &event);
}

double milliseconds(const QElapsedTimer& timer) {
  return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

double scan(frmStation& window, const QString& code) {
  PaintWatch watch;
  qApp->installEventFilter(&watch);
  for (const QChar digit : code) press(window, Qt::Key_0 + digit.digitValue(), digit);
  QElapsedTimer timer;
  timer.start();
  press(window, Qt::Key_Return, QStringLiteral("\r"));
  while (!watch.painted) QApplication::processEvents();
  return milliseconds(timer);
}

double signWithoutWindow(const QString& code) {
  QElapsedTimer timer;
  timer.start();
  const CardHolder holder = findCardHolder(code);
  if (!holder.employee || !SignIn().sign(holder.employee->ENUMBER()).succeeded()) std::exit(1);
  return milliseconds(timer);
}

double median(std::vector<double> values) {
  std::nth_element(values.begin(), values.begin() + values.size() / 2, values.end());
  return values[values.size() / 2];
}

int measure(int cards) {
  const QStringList codes = barcodes(cards + 2);
  frmStation window;
  window.show();
  while (!window.windowHandle()->isExposed()) QApplication::processEvents();
  std::vector<double> scans;
  std::vector<double> signs;
  for (qsizetype i = 0; i + 1 < codes.size(); i += 2) {
    scans.push_back(scan(window, codes[i]));
    signs.push_back(signWithoutWindow(codes[i + 1]));
    if (window.state() != frmStation::State::Answer) return 1;
  }
  std::printf(
      "scan_ms %.2f\nsign_ms %.2f\nworst_ms %.1f\n", median(scans), median(signs),
      std::max(*std::max_element(scans.begin(), scans.end()), *std::max_element(signs.begin(), signs.end())));
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  if (argc != 3) return 2;
  runtime::setAppPath(QString::fromLocal8Bit(argv[1]));
  QApplication::setFont(graphics::userInterfaceFont());
  store::SqlCipherEngine engine(std::chrono::milliseconds(1000));
  store::installEngine(&engine);
  const int result = measure(QString::fromLocal8Bit(argv[2]).toInt());
  gConnection.reset();
  store::installEngine(nullptr);
  return result;
}
