#pragma once

#include <QLabel>

/// A small text below a field that warns while the user types. It keeps room for two lines, so that nothing
/// moves when it comes and goes; the whole of a longer text is in its tool tip.
class HintLabel : public QLabel {
 public:
  explicit HintLabel(const char* name);

  /// An empty text takes the hint away.
  void showHint(const QString& text);
};

/// The hint for a text that cannot be stored because it holds a single quote, empty for any other text.
/// `what` names the text: "部门名称".
[[nodiscard]] QString quoteHint(const QString& what, const QString& text);
