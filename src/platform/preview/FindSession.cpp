#include "preview/FindSession.h"

namespace preview {

FindSession::FindSession(PageView& view, FindBar& bar, QObject* parent)
    : QObject(parent), m_view(view), m_bar(bar), m_search(view.document()) {
  m_bar.hide();
  connect(&m_bar, &FindBar::textChanged, this, &FindSession::search);
  connect(&m_bar, &FindBar::stepAsked, this, &FindSession::step);
  connect(&m_bar, &FindBar::closeAsked, this, &FindSession::close);
}

void FindSession::open() {
  const bool wasOpen = isOpen();
  m_bar.open();
  if (!wasOpen) search(m_bar.text());
}

void FindSession::close() {
  m_bar.hide();
  m_search.clear();
  m_turnedByTyping = false;
  m_view.setMarks({});
  m_view.setFocus();
}

void FindSession::step(int by) {
  if (!isOpen() || m_bar.text().isEmpty()) return open();
  m_search.step(by);
  m_turnedByTyping = false;
  show();
}

void FindSession::search(const QString& text) {
  m_search.search(text, m_view.currentPage());
  const int from = m_view.currentPage();
  show();
  if (m_view.currentPage() != from) m_turnedByTyping = true;
}

void FindSession::show() {
  m_bar.showFound(m_search.current(), m_search.count());
  m_view.setMarks([this](int page) { return m_search.marks(page); });
  if (m_search.count() == 0) return;
  if (!m_turnedByTyping) emit pageTurned(m_view.currentPage(), m_search.currentPage());
  m_view.reveal(m_search.currentPage(), m_search.currentBox());
}

}  // namespace preview
