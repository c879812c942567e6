// The preview against the bare work. Takes what to measure, the report (cards, or month: that of 2026-10) and
// the home; prints the seconds that one repetition took, and the memory in MB that came on top of the report.
//
//   memory, memory_floor    every page gone to / the same pages in QPrintPreviewWidget
//   turn, turn_floor        going to a page and showing it / painting that page once into an image
//   wheel, wheel_floor      a step of the wheel over pages that are kept / copying the pixels of the view
//   find, find_floor        finding texts by the preview's search / in a list of the document's texts

#include <chrono>
#include <cstdio>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <sys/resource.h>

#include <QApplication>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QScrollBar>
#include <QWheelEvent>

#include "attendance/MonthData.h"
#include "foundation/GlobalDefine.h"
#include "graphics/Twips.h"
#include "preview/PageImage.h"
#include "preview/PageView.h"
#include "preview/PreviewWindow.h"
#include "preview/PrintJob.h"
#include "preview/TextSearch.h"
#include "printing/EmployeeMonthReport.h"
#include "printing/SingleEmployeeInfoReport.h"
#include "records/clsEmployeeSet.h"
#include "runtime/ProgramDirectory.h"

namespace {

using preview::PageView;

constexpr int pageTurns = 200;

/// Most memory that the process had so far, in MB.
double peakMemory() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return static_cast<double>(usage.ru_maxrss) / 1024;
}

double secondsOf(int repetitions, const std::function<void(int)>& work) {
  const auto start = std::chrono::steady_clock::now();
  for (int i = 0; i < repetitions; ++i) work(i);
  const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
  return taken.count() / repetitions;
}

report::Document cards() {
  auto employees = std::make_shared<clsEmployeeSet>();
  employees->LoadSet();
  SingleEmployeeInfoReport report;
  report.SetEmployeeSet(employees);
  return report.run();
}

report::Document month() {
  const AttendanceMonth october = *AttendanceMonth::make(2026, 10);
  EmployeeMonthReport report;
  report.setMonth(loadMonth(october, QStringLiteral("学校")));
  return report.run();
}

/// The window as it opens, its first page shown.
struct Shown {
  explicit Shown(const report::Document& document) : window(document, report::Toolbar()) {
    window.show();
    QApplication::processEvents();
  }
  [[nodiscard]] PageView& view() { return *window.findChild<PageView*>(QStringLiteral("view")); }

  preview::PreviewWindow window;
};

double openAndGoToEveryPage(const report::Document& document) {
  Shown shown(document);
  return secondsOf(document.pageCount(), [&](int page) {
    shown.view().goToPage(page);
    QApplication::processEvents();
  });
}

double openInQt(const report::Document& document) {
  QPrinter printer(QPrinter::HighResolution);
  preview::prepare(printer, document);
  QPrintPreviewWidget widget(&printer);
  QObject::connect(&widget, &QPrintPreviewWidget::paintRequested, [&document](QPrinter* target) {
    QPainter painter(target);
    report::DecodingPictureSource pictures;
    const double scale = static_cast<double>(target->resolution()) / graphics::twipsPerInch;
    painter.scale(scale, scale);
    for (int page = 0; page < document.pageCount(); ++page) {
      if (page > 0) target->newPage();
      report::paintPage(painter, document, page, pictures);
    }
  });
  widget.resize(1060, 1000);
  widget.show();
  return secondsOf(1, [](int) { QApplication::processEvents(); });
}

/// Pages far from each other, none of them kept.
int pageOfTurn(const report::Document& document, int turn) {
  return (1 + turn * 7) % document.pageCount();
}

double turnPages(const report::Document& document) {
  Shown shown(document);
  return secondsOf(pageTurns, [&](int turn) {
    shown.view().goToPage(pageOfTurn(document, turn));
    QApplication::processEvents();
  });
}

double paintPages(const report::Document& document) {
  Shown shown(document);
  const QSize page = shown.view().layout().pageSize();
  report::DecodingPictureSource pictures;
  return secondsOf(pageTurns, [&](int turn) {
    std::ignore = preview::pageImage(document, pageOfTurn(document, turn), page, pictures);
  });
}

constexpr int wheelSteps = 300;

void turnWheel(PageView& view, int notches) {
  const QPointF place = view.viewport()->rect().center();
  QWheelEvent event(place, view.viewport()->mapToGlobal(place), {}, QPoint(0, notches * 120), Qt::NoButton,
                    Qt::NoModifier, Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(view.viewport(), &event);
  QApplication::processEvents();
}

double scroll(const report::Document& document) {
  Shown shown(document);
  for (int step = 0; step < 10; ++step) turnWheel(shown.view(), -1);
  return secondsOf(wheelSteps, [&](int step) { turnWheel(shown.view(), step / 5 % 2 == 0 ? 1 : -1); });
}

double copyPixels(const report::Document& document) {
  Shown shown(document);
  const QImage pixels = shown.view().viewport()->grab().toImage();
  QImage target(pixels.size(), pixels.format());
  return secondsOf(wheelSteps, [&](int) {
    QPainter painter(&target);
    painter.drawImage(0, 0, pixels);
  });
}

/// What users look for: a name, part of a number, a time, something that is nowhere.
QStringList wantedTexts() {
  return {QStringLiteral("张"), QStringLiteral("A012"), QStringLiteral("08:0"), QStringLiteral("nothing")};
}

constexpr int searches = 20;

double find(const report::Document& document) {
  preview::TextSearch search(document);
  int found = 0;
  const double seconds = secondsOf(searches, [&](int) {
    for (const QString& wanted : wantedTexts()) {
      search.search(wanted, 0);
      found += search.count();
    }
  });
  std::printf("found %d\n", found / searches);
  return seconds;
}

double findInList(const report::Document& document) {
  QStringList texts;
  for (int page = 0; page < document.pageCount(); ++page) {
    for (const report::PageText& text : document.texts(page)) {
      if (!text.text.isEmpty()) texts.append(text.text);
    }
  }
  qsizetype found = 0;
  const double seconds = secondsOf(searches, [&](int) {
    for (const QString& wanted : wantedTexts()) {
      for (const QString& text : texts) found += text.count(wanted, Qt::CaseInsensitive);
    }
  });
  std::printf("found %lld\n", static_cast<long long>(found / searches));
  return seconds;
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  if (argc != 4) return 2;
  static const std::map<std::string, double (*)(const report::Document&)> measurements{
      {"memory", openAndGoToEveryPage},
      {"memory_floor", openInQt},
      {"turn", turnPages},
      {"turn_floor", paintPages},
      {"wheel", scroll},
      {"wheel_floor", copyPixels},
      {"find", find},
      {"find_floor", findInList}};
  const auto measurement = measurements.find(argv[1]);
  if (measurement == measurements.end()) return 2;
  runtime::setAppPath(QString::fromLocal8Bit(argv[3]));
  const report::Document document = std::string(argv[2]) == "month" ? month() : cards();
  std::printf("pages %d\n", document.pageCount());
  const double before = peakMemory();
  std::printf("seconds %.6f\n", measurement->second(document));
  std::printf("beyond %.1f\n", peakMemory() - before);
  gConnection.reset();
  return 0;
}
