#include "ui/HintLabel.h"

namespace {
constexpr double smallness = 0.9;
constexpr QColor warning(0xb0, 0x30, 0x10);
}  // namespace

HintLabel::HintLabel(const char* name) {
  setObjectName(QLatin1String(name));
  setTextFormat(Qt::PlainText);
  setWordWrap(true);
  setAlignment(Qt::AlignLeft | Qt::AlignTop);
  QFont small = font();
  small.setPointSizeF(small.pointSizeF() * smallness);
  setFont(small);
  QPalette colours = palette();
  colours.setColor(QPalette::WindowText, warning);
  setPalette(colours);
  setFixedHeight(2 * fontMetrics().lineSpacing());
  // A long word must not widen the window either.
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void HintLabel::showHint(const QString& text) {
  setText(text);
  setToolTip(text.toHtmlEscaped());
}

QString quoteHint(const QString& what, const QString& text) {
  return text.contains(u'\'') ? QStringLiteral("%1中有单引号（'），将无法保存。").arg(what) : QString();
}
