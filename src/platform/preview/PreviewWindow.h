#pragma once

#include <memory>

#include <QDialog>

#include "report/Document.h"
#include "report/Toolbar.h"

namespace preview {

/// Shows a laid-out report page by page, with its table of contents, finds texts in it, prints it, copies
/// pages and stores it as PDF. Pages are painted when they come into view, into a bounded cache. Control
/// names: `toolbar`, `view`, `contents`, `findBar`, `cmbZoom`, `txtPage`; a tool's action is found by its
/// index.
class PreviewWindow : public QDialog {
  Q_OBJECT

 public:
  PreviewWindow(report::Document document, const report::Toolbar& toolbar, QWidget* parent = nullptr);
  ~PreviewWindow() override;

 protected:
  /// Escape leaves the page box or closes the find bar first, then the window.
  void keyPressEvent(QKeyEvent* event) override;

 private:
  class Parts;
  std::unique_ptr<Parts> m_parts;
};

}  // namespace preview
