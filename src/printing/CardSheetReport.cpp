#include "printing/CardSheetReport.h"

CardSheetReport::CardSheetReport(const CardSheet& sheet) {
  Title = QStringLiteral("签到卡拼版");
  PaperSize = CardSheet::paperSize;
  const QPoint corner = sheet.box(1).topLeft();
  const QSize step = CardSheet::step();
  // The room between the margins is as high as the rows, so that no fifth one finds place.
  Margins = {corner.x(), corner.y(), 0, PaperSize.height() - corner.y() - CardSheet::rows * step.height()};
  Detail.Height = step.height();
  Columns = {CardSheet::columns, step.width(), sheet.start - 1};
  if (!sheet.cutMarks) return;
  for (const QRect& line : sheet.cutLines()) {
    report::Control mark;
    mark.Kind = report::ControlKind::Line;
    mark.Name = QStringLiteral("CutMark");
    mark.Left = line.left() - corner.x();
    mark.Top = line.top() - corner.y();
    mark.Width = line.width();
    mark.Height = line.height();
    PageHeader.Controls.push_back(mark);
  }
}
