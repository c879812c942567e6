#pragma once

#include <QListWidget>
#include <QStackedWidget>
#include <QTimer>
#include <QWidget>

#include "station/AnswerPanel.h"
#include "station/FittingLabel.h"
#include "station/HeldKey.h"
#include "station/ScanSplitter.h"
#include "station/StationController.h"

/// The window that scans cards: clock, today's count, prompt or answer, and the last scans. Keys are taken by
/// the window itself, so that no control, text field or input method comes between scanner and card.
class frmStation : public QWidget {
  Q_OBJECT

 public:
  enum class State {
    Ready,
    /// An answer stands, until its time is over or the next scan comes.
    Answer,
    /// Ready, but there is no database.
    Trouble,
  };

  explicit frmStation(StationController controller = {});

  [[nodiscard]] State state() const;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  bool focusNextPrevChild(bool) override { return false; }
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  /// Takes the scanner's keys while the question stands over the window.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void BuildWindow();
  [[nodiscard]] QLayout* BuildHead();
  [[nodiscard]] QLayout* BuildMiddle();
  void StartTimers();
  void TakeKey(const QKeyEvent& event);
  void Scan(const QStringList& codes);
  void ShowAnswer(const StationAnswer& answer);
  void AddToList(const StationAnswer& answer);
  /// Clock, figures, warning and prompt as they are now.
  void Refresh();
  void ToggleFullScreen();

  StationController m_controller;
  ScanSplitter m_splitter;
  HeldKey m_held;
  QTimer* m_second;
  QTimer* m_pause;
  QTimer* m_pauseEnd;
  QTimer* m_answer;
  QTimer* m_deaf;

  FittingLabel* m_unit;
  FittingLabel* m_date;
  FittingLabel* m_clock;
  FittingLabel* m_count;
  FittingLabel* m_prompt;
  FittingLabel* m_warning;
  FittingLabel* m_note;
  AnswerPanel* m_panel;
  QStackedWidget* m_stack;
  QListWidget* m_scans;
};
