#include "report/ActiveReport.h"

#include "runtime/Progress.h"

namespace report {

void ActiveReport::restoreDesign() {
  if (!m_design) {
    m_design = Design{PageHeader, Detail, PageFooter};
    return;
  }
  PageHeader = m_design->PageHeader;
  Detail = m_design->Detail;
  PageFooter = m_design->PageFooter;
}

std::vector<Band> ActiveReport::fetchBands() {
  const Section design = Detail;
  std::vector<Band> bands;
  while (true) {
    Section blank = design;
    std::swap(Detail, blank);
    bool endOfData = false;
    ActiveReport_FetchData(endOfData);
    if (endOfData) {
      std::swap(Detail, blank);
      return bands;
    }
    bands.push_back(captureBand(design, Detail));
    runtime::reportProgress(static_cast<int>(bands.size()), expectedBands());
  }
}

Document ActiveReport::run() {
  restoreDesign();
  ActiveReport_ReportStart();
  auto data = std::make_shared<DocumentData>();
  data->title = Title;
  data->paperSize = PaperSize;
  data->left = Margins.left();
  data->headerTop = Margins.top();
  data->footerTop = PaperSize.height() - Margins.bottom() - PageFooter.Height;
  data->header = PageHeader;
  data->detail = Detail;
  data->footer = PageFooter;
  data->bands = fetchBands();
  data->pages = breakIntoPages(data->bands, {data->left, data->headerTop + PageHeader.Height, data->footerTop,
                                             Columns, Detail.Height});
  return Document(std::move(data));
}

}  // namespace report
