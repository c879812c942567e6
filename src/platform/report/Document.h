#pragma once

#include <memory>
#include <vector>

#include <QRectF>
#include <QSize>
#include <QString>
#include <QStringList>

#include "report/PageText.h"
#include "report/Primitive.h"

namespace report {

class DocumentData;

/// A report laid out into pages. A section's controls are held once as a template, a band holds only the
/// values that changed, so thousands of pages stay small; a page's primitives are made when they are asked
/// for. Copies share their content, which never changes.
class Document {
 public:
  /// An empty document without pages.
  Document();
  explicit Document(std::shared_ptr<const DocumentData> data);

  [[nodiscard]] int pageCount() const;
  /// Twips.
  [[nodiscard]] QSize paperSize() const;
  [[nodiscard]] const QString& title() const;
  /// Everything on page `index` (from 0), in drawing order, positions in twips from the paper's top left
  /// corner. Needs a QGuiApplication, because texts are measured.
  [[nodiscard]] std::vector<Primitive> page(int index) const;
  /// The texts on page `index` as the report gave them, in drawing order; empty ones too. Measures nothing.
  [[nodiscard]] std::vector<PageText> texts(int index) const;
  /// What the table of contents says of page `index`: one entry a band that has one.
  [[nodiscard]] QStringList entries(int index) const;
  /// Every place where `wanted` stands in a text, whatever the case, in the order of pages and texts. Nothing
  /// for an empty text.
  [[nodiscard]] std::vector<TextHit> find(const QString& wanted) const;

 private:
  void checkPage(int index) const;

  std::shared_ptr<const DocumentData> m_data;
};

}  // namespace report
