#pragma once

#include <QAbstractListModel>

#include "preview/Thumbnails.h"
#include "report/Document.h"

namespace preview {

/// The table of contents: a row a page, with its number, the entries of its bands and a small picture.
class ContentsModel : public QAbstractListModel {
  Q_OBJECT

 public:
  explicit ContentsModel(report::Document document, QObject* parent = nullptr);

  /// What the screen's pictures are painted for.
  void setDevicePixelRatio(double ratio) { m_ratio = ratio; }
  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

 private:
  report::Document m_document;
  Thumbnails* m_thumbnails;
  QPixmap m_blank;
  double m_ratio = 1;
};

}  // namespace preview
