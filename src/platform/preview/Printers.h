#pragma once

#include <memory>

#include <QPrinter>

class QWidget;

namespace preview {

/// The printers of the system and the box that chooses one.
class Printers {
 public:
  Printers() = default;
  Printers(const Printers&) = delete;
  Printers& operator=(const Printers&) = delete;
  virtual ~Printers() = default;

  /// Whether there is any.
  [[nodiscard]] virtual bool available() const = 0;
  /// Lets the user set up `printer` for a document of `pageCount` pages; whether to print.
  virtual bool choose(QPrinter& printer, int pageCount, QWidget* parent) = 0;
};

/// The real ones, with Qt's print dialog.
class SystemPrinters : public Printers {
 public:
  [[nodiscard]] bool available() const override;
  bool choose(QPrinter& printer, int pageCount, QWidget* parent) override;
};

}  // namespace preview
