#pragma once

#include <functional>

#include "preview/Printers.h"

/// Printers that a test makes up: none, or one that prints into a file.
class FakePrinters : public preview::Printers {
 public:
  explicit FakePrinters(QString file) : m_file(std::move(file)) {}

  /// What the user changes in the box; set before it opens.
  std::function<void(QPrinter&)> settings;

  [[nodiscard]] bool available() const override { return !m_file.isEmpty(); }
  bool choose(QPrinter& printer, int /*pageCount*/, QWidget* /*parent*/) override {
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(m_file);
    if (settings) settings(printer);
    return true;
  }

 private:
  QString m_file;
};
