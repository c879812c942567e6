#pragma once

#include <memory>

#include <QWidget>

#include "preview/PrintJob.h"
#include "preview/Printers.h"
#include "report/Document.h"

namespace preview {

/// What the user does to take a document out of the preview, with all questions and messages.
class DocumentOutput {
 public:
  /// Sheets up to which printing shows no progress.
  static constexpr int quietSheets = 50;

  DocumentOutput(report::Document document, std::unique_ptr<Printers> printers, QWidget* window);

  /// Lets the user choose a printer and prints; without a printer offers a PDF.
  void print(int currentPage);
  /// Lets the user choose a file and writes the PDF.
  void saveAsPdf();

 private:
  void runJob(QPrinter& printer, const std::vector<int>& pages);

  report::Document m_document;
  std::unique_ptr<Printers> m_printers;
  QWidget* m_window;
};

/// A file name made of `title` and `ending`, without the characters that file systems refuse.
[[nodiscard]] QString fileNameFor(const QString& title, const QString& ending);
[[nodiscard]] QString pdfNameFor(const QString& title);

}  // namespace preview
