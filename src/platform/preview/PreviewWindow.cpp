#include "preview/PreviewWindow.h"

#include <functional>

#include <QAction>
#include <QScreen>
#include <QVBoxLayout>

#include "preview/DocumentOutput.h"
#include "preview/PageView.h"
#include "preview/PreviewToolbar.h"
#include "preview/Printers.h"

namespace preview {

namespace {

// Pages at their true size with some room beside them, where the screen is large enough for that.
constexpr QSize comfortableSize{1060, 1000};
constexpr double shareOfScreen = 0.9;

}  // namespace

class PreviewWindow::Parts {
 public:
  Parts(PreviewWindow& window, report::Document document, const report::Toolbar& texts,
        std::unique_ptr<Printers> printers);

 private:
  void arrange();
  void connectTools();
  void addKeys();
  void addKey(const QString& name, const QKeySequence& key, const std::function<void()>& action);
  void onTool(PreviewToolbar::Place place, const QList<QKeySequence>& keys,
              const std::function<void()>& action);
  void showState();
  void goToText(const QString& text);

  PreviewWindow& m_window;
  const int m_pages;
  PreviewToolbar* m_toolbar;
  PageView* m_view;
  DocumentOutput m_output;
};

PreviewWindow::Parts::Parts(PreviewWindow& window, report::Document document, const report::Toolbar& texts,
                            std::unique_ptr<Printers> printers)
    : m_window(window),
      m_pages(document.pageCount()),
      m_toolbar(new PreviewToolbar(texts, &window)),
      m_view(new PageView(document, &window)),
      m_output(std::move(document), std::move(printers), &window) {
  arrange();
  connectTools();
  addKeys();
  showState();
  m_view->setFocus();
}

void PreviewWindow::Parts::arrange() {
  m_window.setWindowTitle(m_view->document().title());
  m_window.setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                          Qt::WindowMaximizeButtonHint | Qt::WindowCloseButtonHint);
  m_view->setObjectName(QStringLiteral("view"));
  auto* column = new QVBoxLayout(&m_window);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(m_toolbar);
  column->addWidget(m_view, 1);
  m_window.resize(comfortableSize.boundedTo(m_window.screen()->availableSize() * shareOfScreen));
}

void PreviewWindow::Parts::connectTools() {
  using Bar = PreviewToolbar;
  onTool(Bar::Print, {QKeySequence::Print}, [this] { m_output.print(m_view->currentPage()); });
  onTool(Bar::ZoomOut, {QKeySequence(Qt::CTRL | Qt::Key_Minus)}, [this] { m_view->zoomOut(); });
  // The plus of the main block needs Shift on most keyboards.
  onTool(Bar::ZoomIn, {QKeySequence(Qt::CTRL | Qt::Key_Plus), QKeySequence(Qt::CTRL | Qt::Key_Equal)},
         [this] { m_view->zoomIn(); });
  onTool(Bar::Previous, {QKeySequence(Qt::Key_PageUp)},
         [this] { m_view->goToPage(m_view->currentPage() - 1); });
  onTool(Bar::Next, {QKeySequence(Qt::Key_PageDown)},
         [this] { m_view->goToPage(m_view->currentPage() + 1); });
  onTool(Bar::SavePdf, {}, [this] { m_output.saveAsPdf(); });

  QObject::connect(m_toolbar, &Bar::zoomChosen, &m_window, [this](const Zoom& zoom) {
    m_view->setZoom(zoom);
    m_view->setFocus();
  });
  QObject::connect(m_toolbar, &Bar::pageEntered, &m_window, [this](const QString& text) { goToText(text); });
  QObject::connect(m_view, &PageView::currentPageChanged, &m_window, [this] { showState(); });
  QObject::connect(m_view, &PageView::zoomChanged, &m_window, [this] { showState(); });
}

void PreviewWindow::Parts::onTool(PreviewToolbar::Place place, const QList<QKeySequence>& keys,
                                  const std::function<void()>& action) {
  QAction* tool = m_toolbar->tool(place);
  tool->setShortcuts(keys);
  // Tools that a narrow window pushes out of the toolbar keep their keys.
  m_window.addAction(tool);
  QObject::connect(tool, &QAction::triggered, &m_window, action);
}

void PreviewWindow::Parts::addKeys() {
  addKey(QStringLiteral("trueSize"), QKeySequence(Qt::CTRL | Qt::Key_0), [this] { m_view->setZoom({}); });
  addKey(QStringLiteral("firstPage"), QKeySequence(Qt::CTRL | Qt::Key_Home), [this] { m_view->goToPage(0); });
  addKey(QStringLiteral("lastPage"), QKeySequence(Qt::CTRL | Qt::Key_End),
         [this] { m_view->goToPage(m_pages - 1); });
}

void PreviewWindow::Parts::addKey(const QString& name, const QKeySequence& key,
                                  const std::function<void()>& action) {
  auto* keyed = new QAction(&m_window);
  keyed->setObjectName(name);
  keyed->setShortcut(key);
  m_window.addAction(keyed);
  QObject::connect(keyed, &QAction::triggered, &m_window, action);
}

void PreviewWindow::Parts::showState() {
  using Bar = PreviewToolbar;
  const bool any = m_pages > 0;
  const int current = m_view->currentPage();
  const double percent = any ? m_view->shownPercent() : 0;
  for (const Bar::Place place : {Bar::Print, Bar::SavePdf, Bar::ZoomBox, Bar::PageBox}) {
    m_toolbar->setToolEnabled(place, any);
  }
  m_toolbar->setToolEnabled(Bar::ZoomOut, any && percent > smallestPercent);
  m_toolbar->setToolEnabled(Bar::ZoomIn, any && percent < largestPercent);
  m_toolbar->setToolEnabled(Bar::Previous, current > 0);
  m_toolbar->setToolEnabled(Bar::Next, current + 1 < m_pages);
  m_toolbar->showZoom(m_view->zoom());
  m_toolbar->showPage(current, m_pages);
}

void PreviewWindow::Parts::goToText(const QString& text) {
  const int page = pageOfText(text, m_pages);
  if (page >= 0) m_view->goToPage(page);
  // Also when nothing changed: what was typed gives way to the page that is shown.
  showState();
  m_view->setFocus();
}

PreviewWindow::PreviewWindow(report::Document document, const report::Toolbar& toolbar, QWidget* parent)
    : PreviewWindow(std::move(document), toolbar, std::make_unique<SystemPrinters>(), parent) {}

PreviewWindow::PreviewWindow(report::Document document, const report::Toolbar& toolbar,
                             std::unique_ptr<Printers> printers, QWidget* parent)
    : QDialog(parent),
      m_parts(std::make_unique<Parts>(*this, std::move(document), toolbar, std::move(printers))) {}

PreviewWindow::~PreviewWindow() = default;

}  // namespace preview
