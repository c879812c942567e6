#include "preview/PageChoice.h"

#include <algorithm>
#include <numeric>

#include <QGridLayout>
#include <QLabel>

#include "preview/PageRange.h"

namespace preview {

PageChoice::PageChoice(int pageCount, int currentPage, QWidget* parent)
    : QGroupBox(QStringLiteral("页"), parent),
      m_pageCount(pageCount),
      m_currentPage(currentPage),
      m_all(new QRadioButton(QStringLiteral("全部 %1 页(&A)").arg(pageCount))),
      m_current(new QRadioButton(QStringLiteral("当前页，第 %1 页(&E)").arg(currentPage + 1))),
      m_range(new QRadioButton(QStringLiteral("页码(&G)："))),
      m_text(new QLineEdit(QStringLiteral("1-%1").arg(pageCount))),
      m_reverse(new QCheckBox(QStringLiteral("从最后一页开始(&R)"))) {
  m_all->setObjectName(QStringLiteral("optAll"));
  m_current->setObjectName(QStringLiteral("optCurrent"));
  m_range->setObjectName(QStringLiteral("optRange"));
  m_text->setObjectName(QStringLiteral("txtRange"));
  m_reverse->setObjectName(QStringLiteral("chkReverse"));
  m_text->setAccessibleName(QStringLiteral("页码，例如 1-3,5"));
  m_all->setChecked(true);
  auto* grid = new QGridLayout(this);
  grid->addWidget(m_all, 0, 0, 1, 3);
  grid->addWidget(m_current, 1, 0, 1, 3);
  grid->addWidget(m_range, 2, 0);
  grid->addWidget(m_text, 2, 1);
  grid->addWidget(new QLabel(QStringLiteral("例如 1-3,5")), 2, 2);
  grid->addWidget(m_reverse, 3, 0, 1, 3);
  connect(m_text, &QLineEdit::textEdited, m_range, [this] { m_range->setChecked(true); });
  connect(m_range, &QRadioButton::clicked, m_text, [this] { askAgain(); });
}

std::optional<std::vector<int>> PageChoice::pages() const {
  std::optional<std::vector<int>> pages;
  if (m_range->isChecked()) {
    pages = pagesOfRange(m_text->text(), m_pageCount);
  } else if (m_current->isChecked()) {
    pages.emplace({m_currentPage});
  } else {
    pages.emplace(m_pageCount);
    std::iota(pages->begin(), pages->end(), 0);
  }
  if (pages && m_reverse->isChecked()) std::reverse(pages->begin(), pages->end());
  return pages;
}

void PageChoice::askAgain() {
  m_text->setFocus();
  m_text->selectAll();
}

}  // namespace preview
