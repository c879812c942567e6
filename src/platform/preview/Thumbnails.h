#pragma once

#include <deque>

#include <QCache>
#include <QObject>
#include <QPixmap>
#include <QTimer>

#include "report/PagePainter.h"

namespace preview {

/// Small pictures of a document's pages. They are painted one after the other when the program has nothing
/// else to do, those asked for last first, and kept in a bounded cache.
class Thumbnails : public QObject {
  Q_OBJECT

 public:
  static constexpr qsizetype cacheBytes = qsizetype{16} * 1024 * 1024;
  static constexpr int longerSide = 104;

  explicit Thumbnails(report::Document document, QObject* parent = nullptr);

  /// Logical pixels.
  [[nodiscard]] QSize size() const { return m_size; }
  /// The picture of page `index` for a screen of this ratio. Until it is painted, which painted() tells, a
  /// null one.
  [[nodiscard]] QPixmap picture(int index, double ratio);
  [[nodiscard]] qsizetype bytes() const { return m_pictures.totalCost(); }

 signals:
  void painted(int index);

 private:
  void paintNext();
  [[nodiscard]] QPixmap paint(int index);

  report::Document m_document;
  report::DecodingPictureSource m_photos;
  QSize m_size;
  double m_ratio = 1;
  QCache<int, QPixmap> m_pictures;
  std::deque<int> m_waiting;
  QTimer m_idle;
};

}  // namespace preview
