#pragma once

#include <memory>
#include <vector>

#include <QRectF>
#include <QSize>
#include <QString>

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

 private:
  std::shared_ptr<const DocumentData> m_data;
};

}  // namespace report
