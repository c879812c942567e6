#include "ui/cards/CardPreview.h"

#include <QApplication>
#include <QScopeGuard>

#include "dialogs/Dialogs.h"
#include "preview/PreviewWindow.h"

namespace {

constexpr qsizetype linesShown = 20;

void tellPhotoFailures(const QStringList& failures) {
  if (failures.isEmpty()) return;
  QStringList lines{QStringLiteral("以下图片无法读取，签到卡上照片留空，标志用默认的：")};
  lines += failures.mid(0, linesShown);
  if (failures.size() > linesShown) lines.append(QStringLiteral("……共 %1 处").arg(failures.size()));
  dialogs::MsgBox(lines.join(QStringLiteral("\n")), dialogs::Exclamation, QStringLiteral("警告"));
}

}  // namespace

void showCardPreview(SingleEmployeeInfoReport& report, std::shared_ptr<clsEmployeeSet> employees) {
  report.SetEmployeeSet(std::move(employees));
  // The photo files go with the employees: nothing may keep them beyond the preview, also when a run fails.
  const auto letGo = qScopeGuard([&report] { report.SetEmployeeSet(nullptr); });
  report::Document document = report.run();
  tellPhotoFailures(report.photoFailures());
  preview::PreviewWindow window(std::move(document), report.Toolbar, QApplication::activeWindow());
  window.exec();
}
