#pragma once

#include <functional>

#include <QApplication>
#include <QTimer>

#include "preview/PrintDialog.h"

namespace support {

/// Uses the print dialog that opens while it lives: sets it up and presses a button. A dialog that stays open
/// after that is left.
class PrintDialogDriver : public QTimer {
 public:
  using Settings = std::function<void(preview::PrintDialog&)>;

  explicit PrintDialogDriver(Settings settings = {}, const char* button = "btnPrint")
      : m_settings(std::move(settings)), m_button(button) {
    callOnTimeout([this] { use(); });
    start(0);
  }

  [[nodiscard]] bool wasOpen() const { return m_opened; }
  /// Whether pressing the button did not close it.
  [[nodiscard]] bool stayed() const { return m_stayed; }

 private:
  void use() {
    auto* dialog = qobject_cast<preview::PrintDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr) return;
    stop();
    m_opened = true;
    if (m_settings) m_settings(*dialog);
    dialog->findChild<QPushButton*>(QLatin1String(m_button))->click();
    m_stayed = dialog->isVisible();
    if (m_stayed) dialog->reject();
  }

  Settings m_settings;
  const char* m_button;
  bool m_opened = false;
  bool m_stayed = false;
};

}  // namespace support
