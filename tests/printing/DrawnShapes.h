#pragma once

#include <vector>

#include <QStringList>

#include "report/Document.h"

/// The shapes of one kind that the control of that name draws on the page.
template <typename Shape>
std::vector<Shape> shapes(const report::Document& document, const QString& control, int page = 0) {
  std::vector<Shape> found;
  for (const report::Primitive& primitive : document.page(page)) {
    const auto* shape = std::get_if<Shape>(&primitive.shape);
    if (shape != nullptr && primitive.control == control) found.push_back(*shape);
  }
  return found;
}

template <typename Shape>
std::vector<Shape> shapes(const report::Document& document, const char* control, int page = 0) {
  return shapes<Shape>(document, QString::fromLatin1(control), page);
}

/// The texts that the control of that name draws on the page, an entry a band.
template <typename Name>
QStringList texts(const report::Document& document, const Name& control, int page = 0) {
  QStringList found;
  for (const auto& text : shapes<report::TextPrimitive>(document, control, page)) found.append(text.text);
  return found;
}
