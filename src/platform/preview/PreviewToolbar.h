#pragma once

#include <QComboBox>
#include <QLineEdit>
#include <QToolBar>

#include "preview/Zoom.h"
#include "report/Toolbar.h"

namespace preview {

/// The toolbar of the preview. Tools are addressed by their place, which separators and boxes share:
/// actions() holds one action for each of the places below and for the separators between them.
class PreviewToolbar : public QToolBar {
  Q_OBJECT

 public:
  enum Place : int {
    Contents = 0,
    Print = 2,
    Copy = 4,
    Find = 6,
    SinglePage = 8,
    ManyPages = 9,
    ZoomOut = 11,
    ZoomIn = 12,
    ZoomBox = 13,
    Previous = 15,
    Next = 16,
    PageBox = 17,
    Back = 19,
    Forward = 20,
    SavePdf = 21,
  };

  /// Every tool stands disabled until somebody enables it. Contents, SinglePage and ManyPages can be checked.
  explicit PreviewToolbar(const report::Toolbar& texts, QWidget* parent = nullptr);

  [[nodiscard]] QAction* tool(Place place) const { return actions().at(place); }
  /// Enables the tool or the box at `place`.
  void setToolEnabled(Place place, bool enabled);
  /// Shows whether what the tool switches on is on.
  void setToolChecked(Place place, bool checked) { tool(place)->setChecked(checked); }

  /// Shows `zoom` as chosen, by its name when it is no entry of the list.
  void showZoom(const Zoom& zoom);
  /// Shows that page `current` (from 0) of `count` is looked at.
  void showPage(int current, int count);
  /// Lets the user type a page. What was typed and not entered gives way to the page that is shown.
  void editPage();
  [[nodiscard]] bool isEditingPage() const { return m_page->hasFocus(); }

 signals:
  void zoomChosen(const preview::Zoom& zoom);
  /// Enter was pressed in the page box.
  void pageEntered(const QString& text);

 private:
  void addTool(int index, const report::Tool& texts);
  void addZoomBox();
  void addPageBox();
  [[nodiscard]] int widthUpTo(Place last) const;

  QComboBox* m_zoom = nullptr;
  QLineEdit* m_page = nullptr;
  QString m_shownPage;
};

/// The page that a text of the page box means, from 0 and never beyond the last: "3", "3 / 12" and full-width
/// digits are understood. -1 when it is no page number.
[[nodiscard]] int pageOfText(const QString& text, int pageCount);

}  // namespace preview
