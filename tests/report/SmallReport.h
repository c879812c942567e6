#pragma once

#include <functional>
#include <vector>

#include "report/ActiveReport.h"

/// A report whose sections and bands a test sets; by default one label a band.
class SmallReport : public report::ActiveReport {
 public:
  SmallReport() {
    PaperSize = {6000, 8000};
    Margins = {500, 700, 500, 800};
    Detail.Height = 1000;
    Detail.Controls.push_back(label(QStringLiteral("lblText"), {100, 200, 3000, 300}));
  }

  static report::Control label(const QString& name, const QRect& box, const QString& caption = {}) {
    report::Control control;
    control.Name = name;
    control.Left = box.left();
    control.Top = box.top();
    control.Width = box.width();
    control.Height = box.height();
    control.Caption = caption;
    control.Font = {QStringLiteral("宋体"), 10, false, false};
    return control;
  }

  /// Fills band `i` (from 0); null: the band's number as the caption of lblText.
  std::function<void(SmallReport&, int)> fill;
  std::function<void(SmallReport&)> start;
  int bandCount = 0;

 protected:
  void ActiveReport_ReportStart() override {
    m_band = 0;
    if (start) start(*this);
  }

  void ActiveReport_FetchData(bool& endOfData) override {
    endOfData = m_band == bandCount;
    if (endOfData) return;
    if (fill) {
      fill(*this, m_band);
    } else {
      Detail.control(QStringLiteral("lblText")).Caption = QString::number(m_band + 1);
    }
    ++m_band;
  }

  [[nodiscard]] int expectedBands() const override { return bandCount; }

 private:
  int m_band = 0;
};

/// The primitives of one kind on a page, with the names of their controls.
template <typename Shape>
std::vector<std::pair<QString, Shape>> shapesOf(const report::Document& document, int page) {
  std::vector<std::pair<QString, Shape>> shapes;
  for (const report::Primitive& primitive : document.page(page)) {
    if (const auto* shape = std::get_if<Shape>(&primitive.shape))
      shapes.emplace_back(primitive.control, *shape);
  }
  return shapes;
}

inline QStringList textsOf(const report::Document& document, int page) {
  QStringList texts;
  for (const auto& [name, shape] : shapesOf<report::TextPrimitive>(document, page)) texts.append(shape.text);
  return texts;
}
