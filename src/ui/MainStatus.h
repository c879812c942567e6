#pragma once

#include <QLabel>
#include <QStatusBar>

/// What the main window's status bar says: how many records there are (lblCounts), and what the last action
/// did or could not do (lblNote).
class MainStatus {
 public:
  explicit MainStatus(QStatusBar& bar);

  /// `mode` is the list mode: 1 employees, 2 departments, 0 neither.
  void showCounts(int mode, int rows, int selected);
  /// Replaces the note of the action before; the whole of a long one is in its tool tip.
  void note(const QString& text);

 private:
  QLabel* m_note;
  QLabel* m_counts;
};
