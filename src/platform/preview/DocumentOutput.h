#pragma once

#include <QWidget>

#include "preview/PrintJob.h"
#include "report/Document.h"

namespace preview {

/// What the user does to take a document out of the preview, with all questions and messages.
class DocumentOutput {
 public:
  /// Pages up to which printing shows no progress.
  static constexpr int quietPages = 50;

  DocumentOutput(report::Document document, QWidget* window);

  /// Lets the user choose a printer, prints, and keeps an eye on the job as long as the window is there;
  /// without a printer offers a PDF.
  void print(int currentPage);
  /// Lets the user choose a file and writes the PDF.
  void saveAsPdf();

 private:
  void offerPdf();
  /// The job's number; nothing when the user cancelled it.
  [[nodiscard]] std::optional<int> runJob(const PrintChoice& choice);

  report::Document m_document;
  QWidget* m_window;
};

/// A file name made of `title` and `ending`, without the characters that file systems refuse.
[[nodiscard]] QString fileNameFor(const QString& title, const QString& ending);
[[nodiscard]] QString pdfNameFor(const QString& title);

}  // namespace preview
