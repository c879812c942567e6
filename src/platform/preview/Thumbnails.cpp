#include "preview/Thumbnails.h"

#include <algorithm>

#include "preview/PageImage.h"

namespace preview {

namespace {

constexpr qsizetype photoBytes = qsizetype{2} * 1024 * 1024;
// More than a list shows; those that were scrolled past are not painted any more.
constexpr std::size_t mostWaiting = 32;
// No line is painted thinner than a pixel: painted at its own size, a table would be all lines.
constexpr int oversize = 3;

}  // namespace

Thumbnails::Thumbnails(report::Document document, QObject* parent)
    : QObject(parent),
      m_document(std::move(document)),
      m_photos(photoBytes),
      m_size(m_document.paperSize().scaled(longerSide, longerSide, Qt::KeepAspectRatio)),
      m_pictures(cacheBytes) {
  m_idle.setInterval(0);
  connect(&m_idle, &QTimer::timeout, this, &Thumbnails::paintNext);
}

QPixmap Thumbnails::picture(int index, double ratio) {
  if (ratio != m_ratio) {
    m_pictures.clear();
    m_ratio = ratio;
  }
  if (const QPixmap* known = m_pictures.object(index)) return *known;
  if (std::find(m_waiting.begin(), m_waiting.end(), index) == m_waiting.end()) {
    m_waiting.push_back(index);
    if (m_waiting.size() > mostWaiting) m_waiting.pop_front();
    m_idle.start();
  }
  return {};
}

void Thumbnails::paintNext() {
  if (m_waiting.empty()) return m_idle.stop();
  const int index = m_waiting.back();
  m_waiting.pop_back();
  auto* picture = new QPixmap(paint(index));  // NOLINT: QCache owns it.
  m_pictures.insert(index, picture, qsizetype{4} * picture->width() * picture->height());
  emit painted(index);
}

QPixmap Thumbnails::paint(int index) {
  const QSize pixels = (QSizeF(m_size) * m_ratio).toSize();
  QImage image = pageImage(m_document, index, pixels * oversize, m_photos)
                     .scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  QPainter painter(&image);
  painter.setPen(Qt::gray);
  painter.drawRect(image.rect().adjusted(0, 0, -1, -1));
  painter.end();
  image.setDevicePixelRatio(m_ratio);
  return QPixmap::fromImage(std::move(image));
}

}  // namespace preview
