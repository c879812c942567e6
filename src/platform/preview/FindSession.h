#pragma once

#include <functional>

#include "preview/FindBar.h"
#include "preview/PageView.h"
#include "preview/TextSearch.h"

namespace preview {

/// Searching in the preview: what is typed in the bar is looked for at once, the hits are highlighted in the
/// view, and the view goes to the current one.
class FindSession : public QObject {
  Q_OBJECT

 public:
  /// The bar starts hidden. Both must outlive the session.
  FindSession(PageView& view, FindBar& bar, QObject* parent);

  [[nodiscard]] bool isOpen() const { return m_bar.isVisible(); }
  void open();
  /// Hides the bar and the highlights.
  void close();
  /// Goes to the next hit (1) or the one before (-1); opens the bar when there is nothing to look for.
  void step(int by);

 signals:
  /// The view goes from one page to the one of a hit. While a text is typed, told of the first page only: the
  /// ones that each letter leads to are no places to come back to.
  void pageTurned(int from, int to);

 private:
  void search(const QString& text);
  void show();

  PageView& m_view;
  FindBar& m_bar;
  TextSearch m_search;
  bool m_turnedByTyping = false;
};

}  // namespace preview
