#include "preview/FindBar.h"

#include <QHBoxLayout>
#include <QShortcut>

namespace preview {

namespace {

constexpr int smallestTextWidth = 120;
constexpr int textWidth = 260;
constexpr int longestText = 200;

}  // namespace

FindBar::FindBar(QWidget* parent) : QWidget(parent), m_text(new QLineEdit(this)), m_found(new QLabel(this)) {
  setObjectName(QStringLiteral("findBar"));
  m_text->setObjectName(QStringLiteral("txtFind"));
  m_text->setPlaceholderText(QStringLiteral("姓名、编号或其他文字"));
  m_text->setAccessibleName(QStringLiteral("查找"));
  m_text->setClearButtonEnabled(true);
  m_text->setMinimumWidth(smallestTextWidth);
  m_text->setMaximumWidth(textWidth);
  m_text->setMaxLength(longestText);
  m_found->setObjectName(QStringLiteral("lblFound"));
  auto* row = new QHBoxLayout(this);
  row->addWidget(new QLabel(QStringLiteral("查找："), this));
  row->addWidget(m_text, 1);
  addStep("btnFindPrevious", QStringLiteral("上一处"), QStringLiteral("上一处 (Shift+F3)"), -1);
  addStep("btnFindNext", QStringLiteral("下一处"), QStringLiteral("下一处 (F3)"), 1);
  row->addWidget(m_found);
  row->addStretch(1);
  connect(addButton("btnFindClose", QStringLiteral("关闭"), QStringLiteral("关闭查找栏 (Esc)")),
          &QToolButton::clicked, this, &FindBar::closeAsked);

  connect(m_text, &QLineEdit::textChanged, this, &FindBar::textChanged);
  connect(m_text, &QLineEdit::returnPressed, this, [this] { emit stepAsked(1); });
  auto* backward = new QShortcut(QKeySequence(Qt::SHIFT | Qt::Key_Return), m_text);
  backward->setContext(Qt::WidgetShortcut);
  connect(backward, &QShortcut::activated, this, [this] { emit stepAsked(-1); });
}

QToolButton* FindBar::addButton(const char* name, const QString& text, const QString& tip) {
  auto* button = new QToolButton(this);
  button->setObjectName(QString::fromLatin1(name));
  button->setText(text);
  button->setToolTip(tip);
  button->setAutoRaise(true);
  button->setFocusPolicy(Qt::TabFocus);
  layout()->addWidget(button);
  return button;
}

void FindBar::addStep(const char* name, const QString& text, const QString& tip, int by) {
  QToolButton* button = addButton(name, text, tip);
  connect(button, &QToolButton::clicked, this, [this, by] { emit stepAsked(by); });
  m_steps.append(button);
}

void FindBar::open() {
  show();
  m_text->setFocus();
  m_text->selectAll();
}

void FindBar::showFound(int current, int count) {
  for (QToolButton* step : m_steps) step->setEnabled(count > 0);
  if (text().isEmpty()) return m_found->clear();
  m_found->setText(count == 0 ? QStringLiteral("没有找到")
                              : QStringLiteral("第 %1 处，共 %2 处").arg(current + 1).arg(count));
}

}  // namespace preview
