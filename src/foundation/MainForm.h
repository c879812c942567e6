#pragma once

/// What start-up needs of the main window.
class MainForm {
 public:
  MainForm() = default;
  MainForm(const MainForm&) = delete;
  MainForm& operator=(const MainForm&) = delete;
  virtual ~MainForm() = default;

  /// Shows the window and returns at once.
  virtual void Show() = 0;
};
