#pragma once

#include <optional>
#include <vector>

#include <QCheckBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QRadioButton>

namespace preview {

/// Which pages of a document are printed, and in which order. Control names: `optAll`, `optCurrent`,
/// `optRange`, `txtRange`, `chkReverse`.
class PageChoice : public QGroupBox {
 public:
  /// Begins with all pages, and "1-N" to be changed.
  PageChoice(int pageCount, int currentPage, QWidget* parent = nullptr);

  /// From 0, in the order of printing; nothing when the range is not understood.
  [[nodiscard]] std::optional<std::vector<int>> pages() const;
  /// Lets the user correct the range.
  void askAgain();

 private:
  int m_pageCount;
  int m_currentPage;
  QRadioButton* m_all;
  QRadioButton* m_current;
  QRadioButton* m_range;
  QLineEdit* m_text;
  QCheckBox* m_reverse;
};

}  // namespace preview
