#pragma once

#include <QListView>

#include "preview/ContentsModel.h"

namespace preview {

/// The list beside the pages from which the user goes to one.
class ContentsPane : public QListView {
  Q_OBJECT

 public:
  explicit ContentsPane(const report::Document& document, QWidget* parent = nullptr);

  /// Shows that `page` is looked at, without going there.
  void showCurrent(int page);

 signals:
  /// The user chose a page by mouse or keys.
  void pageChosen(int page);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  ContentsModel* m_model;
  bool m_following = false;
};

}  // namespace preview
