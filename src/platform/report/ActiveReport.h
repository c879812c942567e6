#pragma once

#include <optional>

#include <QMargins>
#include <QSize>

#include "report/Controls.h"
#include "report/Document.h"
#include "report/DocumentData.h"
#include "report/Toolbar.h"

namespace report {

/// A banded report: page header, detail, page footer. run() raises ActiveReport_ReportStart once and
/// ActiveReport_FetchData once per band, and lays the bands out into pages.
class ActiveReport {
 public:
  ActiveReport() = default;
  ActiveReport(const ActiveReport&) = delete;
  ActiveReport& operator=(const ActiveReport&) = delete;
  virtual ~ActiveReport() = default;

  /// Lays the report out. The document keeps nothing of the report. Reports progress a band. What an event
  /// throws reaches the caller. Every run starts from the controls as they were before the first one, and
  /// every band from what ReportStart left; afterwards the controls hold the values of the last band.
  [[nodiscard]] Document run();

  Section PageHeader;
  Section Detail;
  Section PageFooter;
  report::Toolbar Toolbar;
  /// Twips; A4 portrait by default.
  QSize PaperSize{11906, 16838};
  QMargins Margins{1440, 1134, 1440, 1134};
  /// How the detail bands stand side by side; one below the other by default.
  BandColumns Columns;
  /// Title of the preview window and of the PDF.
  QString Title;

 protected:
  /// Before any data: settings are read and the controls get what is the same on every band.
  virtual void ActiveReport_ReportStart() = 0;
  /// Fills the controls of the next band, or sets `endOfData` to true.
  virtual void ActiveReport_FetchData(bool& endOfData) = 0;
  /// How many bands are expected, for the progress; 0 when not known.
  [[nodiscard]] virtual int expectedBands() const { return 0; }

 private:
  struct Design {
    Section PageHeader;
    Section Detail;
    Section PageFooter;
  };

  void restoreDesign();
  [[nodiscard]] std::vector<Band> fetchBands();

  std::optional<Design> m_design;
};

}  // namespace report
