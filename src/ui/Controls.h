#pragma once

#include <initializer_list>

#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>

/// Gives the control the name by which tests and assistive tools find it.
template <typename Control>
Control* named(const char* name, Control* control) {
  control->setObjectName(QLatin1String(name));
  return control;
}

/// A text box in 宋体, wide enough for most names of people and departments.
[[nodiscard]] QLineEdit* makeTextBox(const char* name);
/// A label in front of `field`, which screen readers call by it.
[[nodiscard]] QLabel* makeLabel(const char* name, const QString& caption, QWidget* field);
/// The buttons at the right end of a row.
[[nodiscard]] QLayout* makeButtonRow(std::initializer_list<QPushButton*> buttons);
/// Lets the user type over what stands in the box.
void askAgain(QLineEdit& box);
