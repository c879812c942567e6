#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QToolButton>
#include <QWidget>

namespace preview {

/// The bar in which the user types what to look for. Control names: `txtFind`, `btnFindPrevious`,
/// `btnFindNext`, `lblFound`, `btnFindClose`.
class FindBar : public QWidget {
  Q_OBJECT

 public:
  explicit FindBar(QWidget* parent = nullptr);

  [[nodiscard]] QString text() const { return m_text->text(); }
  /// Shows the bar with its text chosen, ready to be typed over.
  void open();
  /// Tells that hit `current` (from 0) of `count` is shown.
  void showFound(int current, int count);

 signals:
  void textChanged(const QString& text);
  /// 1 for the next hit, -1 for the one before.
  void stepAsked(int by);
  void closeAsked();

 private:
  QToolButton* addButton(const char* name, const QString& text, const QString& tip);
  void addStep(const char* name, const QString& text, const QString& tip, int by);

  QLineEdit* m_text;
  QLabel* m_found;
  QList<QToolButton*> m_steps;
};

}  // namespace preview
