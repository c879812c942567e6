#pragma once

#include "report/ActiveReport.h"

/// Bands with their number on them, one a page.
class SampleReport : public report::ActiveReport {
 public:
  explicit SampleReport(int pages) : m_pages(pages) {
    Title = QStringLiteral("样本: 页/数");
    Detail.Height = PaperSize.height() - Margins.top() - Margins.bottom();
    report::Control label;
    label.Name = QStringLiteral("lblNumber");
    label.Width = 6000;
    label.Height = 2000;
    label.Font.size = 72;
    Detail.Controls.push_back(label);
    Detail.EntryControl = label.Name;
    report::LocalizeToolbar(Toolbar);
  }

 protected:
  void ActiveReport_ReportStart() override { m_fetched = 0; }
  void ActiveReport_FetchData(bool& endOfData) override {
    endOfData = ++m_fetched > m_pages;
    if (!endOfData) Detail.control(QStringLiteral("lblNumber")).Caption = QString::number(m_fetched);
  }

 private:
  int m_pages;
  int m_fetched = 0;
};

inline report::Document sampleDocument(int pages) {
  return SampleReport(pages).run();
}
