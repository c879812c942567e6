#include "preview/PreviewToolbar.h"

#include <algorithm>
#include <array>

#include <QRegularExpression>
#include <QStyle>
#include <QToolButton>

#include "preview/ToolIcon.h"

namespace preview {

namespace {

constexpr std::array separators{1, 3, 5, 7, 10, 14, 18};
constexpr std::array switches{PreviewToolbar::Contents, PreviewToolbar::SinglePage,
                              PreviewToolbar::ManyPages};
constexpr int iconSide = 22;
/// Pixels between the frame and the text of a line edit, the cursor among them.
constexpr int pageMargin = 4;

}  // namespace

PreviewToolbar::PreviewToolbar(const report::Toolbar& texts, QWidget* parent) : QToolBar(parent) {
  setObjectName(QStringLiteral("toolbar"));
  setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  setIconSize({iconSide, iconSide});
  for (int index = 0; index < report::Toolbar::toolCount; ++index) {
    if (std::find(separators.begin(), separators.end(), index) != separators.end()) {
      addSeparator();
    } else if (index == ZoomBox) {
      addZoomBox();
    } else if (index == PageBox) {
      addPageBox();
    } else {
      addTool(index, texts.Tools.at(index));
    }
  }
  addTool(SavePdf, {QStringLiteral("存为PDF"), QStringLiteral("存为PDF")});
  // A window narrower than that would hide the boxes, which keys lead to and no menu can hold.
  setMinimumWidth(widthUpTo(PageBox));
}

int PreviewToolbar::widthUpTo(Place last) const {
  const int spacing = style()->pixelMetric(QStyle::PM_ToolBarItemSpacing, nullptr, this);
  const int edges = style()->pixelMetric(QStyle::PM_ToolBarItemMargin, nullptr, this) +
                    style()->pixelMetric(QStyle::PM_ToolBarFrameWidth, nullptr, this);
  int width = 2 * edges + style()->pixelMetric(QStyle::PM_ToolBarExtensionExtent, nullptr, this);
  for (int index = 0; index <= last; ++index) {
    const QWidget* item = widgetForAction(actions().at(index));
    width +=
        item->sizeHint().expandedTo(item->minimumSize()).boundedTo(item->maximumSize()).width() + spacing;
  }
  return width;
}

void PreviewToolbar::addTool(int index, const report::Tool& texts) {
  QAction* action = addAction(toolIcon(index), texts.Tooltip);
  // A caption set as text would lose its dots on the button.
  if (!texts.Caption.isEmpty()) action->setIconText(texts.Caption);
  action->setToolTip(texts.Tooltip);
  action->setEnabled(false);
  action->setCheckable(std::find(switches.begin(), switches.end(), index) != switches.end());
  if (!texts.Caption.isEmpty()) return;
  if (auto* button = qobject_cast<QToolButton*>(widgetForAction(action))) {
    button->setToolButtonStyle(Qt::ToolButtonIconOnly);
  }
}

void PreviewToolbar::addZoomBox() {
  m_zoom = new QComboBox(this);
  m_zoom->setObjectName(QStringLiteral("cmbZoom"));
  m_zoom->setToolTip(QStringLiteral("显示比例"));
  m_zoom->setAccessibleName(QStringLiteral("显示比例"));
  m_zoom->setMaxVisibleItems(static_cast<int>(zoomList().size()));
  // Rolling the wheel over the box on the way to the pages must not change the zoom.
  m_zoom->setFocusPolicy(Qt::TabFocus);
  // A zoom that is no entry is shown as placeholder, and is no less chosen than the others.
  QPalette colours = m_zoom->palette();
  colours.setBrush(QPalette::PlaceholderText, colours.buttonText());
  m_zoom->setPalette(colours);
  for (const Zoom& zoom : zoomList()) m_zoom->addItem(zoomText(zoom));
  connect(m_zoom, &QComboBox::activated, this, [this](int index) { emit zoomChosen(zoomList().at(index)); });
  addWidget(m_zoom)->setEnabled(false);
}

void PreviewToolbar::addPageBox() {
  m_page = new QLineEdit(this);
  m_page->setObjectName(QStringLiteral("txtPage"));
  m_page->setToolTip(QStringLiteral("页码，按回车键转到该页"));
  m_page->setAccessibleName(QStringLiteral("页码"));
  m_page->setAlignment(Qt::AlignCenter);
  const int text = m_page->fontMetrics().horizontalAdvance(QStringLiteral("0000 / 0000"));
  const int edges = style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, m_page) + pageMargin;
  m_page->setFixedWidth(text + 2 * edges);
  connect(m_page, &QLineEdit::returnPressed, this, [this] { emit pageEntered(m_page->text()); });
  connect(m_page, &QLineEdit::editingFinished, this, [this] { m_page->setText(m_shownPage); });
  addWidget(m_page)->setEnabled(false);
}

void PreviewToolbar::setToolEnabled(Place place, bool enabled) {
  tool(place)->setEnabled(enabled);
}

void PreviewToolbar::showZoom(const Zoom& zoom) {
  m_zoom->setPlaceholderText(zoomText(zoom));
  m_zoom->setCurrentIndex(m_zoom->findText(zoomText(zoom)));
}

void PreviewToolbar::showPage(int current, int count) {
  m_shownPage = QStringLiteral("%1 / %2").arg(count == 0 ? 0 : current + 1).arg(count);
  m_page->setText(m_shownPage);
}

void PreviewToolbar::editPage() {
  m_page->setFocus();
  m_page->selectAll();
}

int pageOfText(const QString& text, int pageCount) {
  static const QRegularExpression number(QStringLiteral("^\\s*(\\d{1,9})\\s*(?:/.*)?$"));
  const auto match = number.match(text.normalized(QString::NormalizationForm_KC));
  if (!match.hasMatch() || pageCount == 0) return -1;
  return std::clamp(match.captured(1).toInt(), 1, pageCount) - 1;
}

}  // namespace preview
