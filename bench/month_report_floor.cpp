// Draws the texts of a full month, two a day for EMPLOYEES people, into the PDF FILE: one cached glyph run a
// distinct text, no frames, no headings, no database.

#include <QGlyphRun>
#include <QGuiApplication>
#include <QHash>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QTextLayout>

namespace {

constexpr int employeesOnPage = 12;
constexpr int daysInGrid = 31;
constexpr int cell = 567;
constexpr int half = 283;

QFont cellFont() {
  QFont font(QStringLiteral("AR PL UMing CN"));
  font.setPixelSize(180);
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

QGlyphRun shaped(const QString& text) {
  QTextLayout layout(text, cellFont());
  layout.beginLayout();
  layout.createLine();
  layout.endLayout();
  return layout.glyphRuns().constFirst();
}

QString timeText(int employee, int day, int hour) {
  return QStringLiteral("%1:%2")
      .arg(hour + employee % 2, 2, 10, QLatin1Char('0'))
      .arg((employee * 7 + day * 13) % 60, 2, 10, QLatin1Char('0'));
}

void drawEmployee(QPainter& painter, QHash<QString, QGlyphRun>& runs, int employee) {
  const int top = 1984 + employee % employeesOnPage * 1134;
  for (int day = 1; day <= daysInGrid; ++day) {
    const int left = 1984 + (day - 1) / 2 * cell;
    int line = top + (day - 1) % 2 * cell;
    for (const int hour : {7, 17}) {
      const QString text = timeText(employee, day, hour);
      auto run = runs.constFind(text);
      if (run == runs.constEnd()) run = runs.insert(text, shaped(text));
      painter.drawGlyphRun(QPointF(left, line), *run);
      line += half;
    }
  }
}

}  // namespace

int main(int argc, char** argv) {
  const QGuiApplication application(argc, argv);
  if (argc != 3) return 2;
  QPdfWriter writer(QString::fromLocal8Bit(argv[2]));
  writer.setResolution(1440);
  writer.setPageSize(QPageSize(QPageSize::A4));
  writer.setPageMargins({});
  QPainter painter(&writer);
  QHash<QString, QGlyphRun> runs;
  const int employees = QByteArray(argv[1]).toInt();
  for (int employee = 0; employee < employees; ++employee) {
    if (employee > 0 && employee % employeesOnPage == 0) writer.newPage();
    drawEmployee(painter, runs, employee);
  }
  return painter.end() ? 0 : 1;
}
