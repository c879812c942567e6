#include "ui/Controls.h"

#include <QHBoxLayout>

#include "graphics/Fonts.h"

QLineEdit* makeTextBox(const char* name) {
  auto* box = named(name, new QLineEdit);
  QFont font = box->font();
  font.setFamily(graphics::substituteFamily(QStringLiteral("宋体")));
  box->setFont(font);
  box->setMinimumWidth(box->fontMetrics().horizontalAdvance(u'宋') * 20);
  return box;
}

QLabel* makeLabel(const char* name, const QString& caption, QWidget* field) {
  auto* label = named(name, new QLabel(caption));
  label->setBuddy(field);
  return label;
}

QLayout* makeButtonRow(std::initializer_list<QPushButton*> buttons) {
  auto* row = new QHBoxLayout;
  row->addStretch();
  for (QPushButton* button : buttons) row->addWidget(button);
  return row;
}

void askAgain(QLineEdit& box) {
  box.setFocus();
  box.selectAll();
}
