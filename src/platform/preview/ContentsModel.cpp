#include "preview/ContentsModel.h"

namespace preview {

namespace {

constexpr int rowMargin = 5;
constexpr qsizetype linesBeside = 4;

QStringList twoALine(const QStringList& entries) {
  QStringList lines;
  for (qsizetype i = 0; i < entries.size(); i += 2) {
    lines += QStringList(entries.mid(i, 2)).join(QStringLiteral("　"));
  }
  return lines;
}

/// As many lines as fit beside the picture.
QString shownEntries(QStringList entries) {
  if (entries.size() > linesBeside) entries = twoALine(entries);
  if (entries.size() > linesBeside) {
    entries = entries.mid(0, linesBeside - 1) + QStringList{QStringLiteral("……")};
  }
  return entries.isEmpty() ? QString() : QLatin1Char('\n') + entries.join(QLatin1Char('\n'));
}

}  // namespace

ContentsModel::ContentsModel(report::Document document, QObject* parent)
    : QAbstractListModel(parent),
      m_document(std::move(document)),
      m_thumbnails(new Thumbnails(m_document, this)),
      m_blank(m_thumbnails->size()) {
  m_blank.fill(Qt::white);
  connect(m_thumbnails, &Thumbnails::painted, this,
          [this](int page) { emit dataChanged(index(page), index(page), {Qt::DecorationRole}); });
}

int ContentsModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : m_document.pageCount();
}

QVariant ContentsModel::data(const QModelIndex& index, int role) const {
  const int page = index.row();
  switch (role) {
    case Qt::DisplayRole:
      return QStringLiteral("第 %1 页").arg(page + 1) + shownEntries(m_document.entries(page));
    case Qt::ToolTipRole:
      return m_document.entries(page).join(QStringLiteral("、"));
    case Qt::DecorationRole: {
      const QPixmap picture = m_thumbnails->picture(page, m_ratio);
      return picture.isNull() ? m_blank : picture;
    }
    case Qt::SizeHintRole:
      return QSize(0, m_thumbnails->size().height() + 2 * rowMargin);
    default:
      return {};
  }
}

}  // namespace preview
