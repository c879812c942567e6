#include "preview/PreviewWindow.h"

#include <functional>

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QSplitter>
#include <QToolTip>
#include <QVBoxLayout>

#include "graphics/WaitCursor.h"
#include "preview/ContentsPane.h"
#include "preview/DocumentOutput.h"
#include "preview/FindSession.h"
#include "preview/PageCopy.h"
#include "preview/PageHistory.h"
#include "preview/PageView.h"
#include "preview/PreviewToolbar.h"

namespace preview {

namespace {

// Pages at their true size with some room beside them, where the screen is large enough for that.
constexpr QSize comfortableSize{1060, 1000};
constexpr double shareOfScreen = 0.9;
constexpr int contentsWidth = 210;

}  // namespace

class PreviewWindow::Parts {
 public:
  Parts(PreviewWindow& window, report::Document document, const report::Toolbar& texts);

  /// Leaves the page box or closes the find bar; whether there was something to do before closing the window.
  bool escape();

 private:
  void arrange();
  void connectOutput();
  void connectLooks();
  void connectPages();
  void connectView();
  void addKeys();
  void addKey(const QString& name, const QKeySequence& key, const std::function<void()>& action);
  void onTool(PreviewToolbar::Place place, const QList<QKeySequence>& keys,
              const std::function<void()>& action);
  void showState();
  void showTools(bool any);
  void visit(int page);
  void goToText(const QString& text);
  void showContents();
  void showSingle();
  void copyPage();

  PreviewWindow& m_window;
  const int m_pages;
  PreviewToolbar* m_toolbar;
  PageView* m_view;
  ContentsPane* m_contents;
  FindBar* m_findBar;
  FindSession m_find;
  DocumentOutput m_output;
  PageHistory m_history;
  /// What single pages are shown at, for the way back from several.
  Zoom m_singleZoom;
};

PreviewWindow::Parts::Parts(PreviewWindow& window, report::Document document, const report::Toolbar& texts)
    : m_window(window),
      m_pages(document.pageCount()),
      m_toolbar(new PreviewToolbar(texts, &window)),
      m_view(new PageView(document, &window)),
      m_contents(new ContentsPane(document, &window)),
      m_findBar(new FindBar(&window)),
      m_find(*m_view, *m_findBar, nullptr),
      m_output(std::move(document), &window),
      m_singleZoom(m_view->zoom()) {
  arrange();
  connectOutput();
  connectLooks();
  connectPages();
  connectView();
  addKeys();
  showState();
  m_view->setFocus();
}

void PreviewWindow::Parts::arrange() {
  m_window.setWindowTitle(m_view->document().title());
  m_window.setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                          Qt::WindowMaximizeButtonHint | Qt::WindowCloseButtonHint);
  m_view->setObjectName(QStringLiteral("view"));
  m_contents->hide();
  auto* splitter = new QSplitter(&m_window);
  splitter->addWidget(m_contents);
  splitter->addWidget(m_view);
  splitter->setStretchFactor(1, 1);
  splitter->setChildrenCollapsible(false);
  splitter->setSizes({contentsWidth, comfortableSize.width() - contentsWidth});
  auto* column = new QVBoxLayout(&m_window);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(m_toolbar);
  column->addWidget(m_findBar);
  column->addWidget(splitter, 1);
  m_window.resize(comfortableSize.boundedTo(m_window.screen()->availableSize() * shareOfScreen));
}

void PreviewWindow::Parts::connectOutput() {
  using Bar = PreviewToolbar;
  onTool(Bar::Print, {QKeySequence::Print}, [this] { m_output.print(m_view->currentPage()); });
  onTool(Bar::Copy, {QKeySequence::Copy}, [this] { copyPage(); });
  onTool(Bar::Find, {QKeySequence::Find}, [this] { m_find.open(); });
  onTool(Bar::SavePdf, {}, [this] { m_output.saveAsPdf(); });
}

void PreviewWindow::Parts::connectLooks() {
  using Bar = PreviewToolbar;
  onTool(Bar::Contents, {}, [this] { showContents(); });
  onTool(Bar::SinglePage, {}, [this] { showSingle(); });
  onTool(Bar::ManyPages, {}, [this] {
    m_view->setZoom({Zoom::Fit::Several, 100});
    showState();
  });
  onTool(Bar::ZoomOut, {QKeySequence(Qt::CTRL | Qt::Key_Minus)}, [this] { m_view->zoomOut(); });
  // The plus of the main block needs Shift on most keyboards.
  onTool(Bar::ZoomIn, {QKeySequence(Qt::CTRL | Qt::Key_Plus), QKeySequence(Qt::CTRL | Qt::Key_Equal)},
         [this] { m_view->zoomIn(); });
  QObject::connect(m_toolbar, &Bar::zoomChosen, &m_window, [this](const Zoom& zoom) {
    m_view->setZoom(zoom);
    m_view->setFocus();
  });
}

void PreviewWindow::Parts::connectPages() {
  using Bar = PreviewToolbar;
  onTool(Bar::Previous, {QKeySequence(Qt::Key_PageUp)}, [this] { visit(m_view->currentPage() - 1); });
  onTool(Bar::Next, {QKeySequence(Qt::Key_PageDown)}, [this] { visit(m_view->currentPage() + 1); });
  onTool(Bar::Back, {QKeySequence(Qt::ALT | Qt::Key_Left)}, [this] {
    m_view->goToPage(m_history.goBack(m_view->currentPage()));
    showState();
  });
  onTool(Bar::Forward, {QKeySequence(Qt::ALT | Qt::Key_Right)}, [this] {
    m_view->goToPage(m_history.goForward(m_view->currentPage()));
    showState();
  });
  QObject::connect(m_toolbar, &Bar::pageEntered, &m_window, [this](const QString& text) { goToText(text); });
  QObject::connect(m_contents, &ContentsPane::pageChosen, &m_window, [this](int page) { visit(page); });
  QObject::connect(&m_find, &FindSession::pageTurned, &m_window, [this](int from, int to) {
    m_history.visit(from, to);
    showState();
  });
}

void PreviewWindow::Parts::connectView() {
  QObject::connect(m_view, &PageView::currentPageChanged, &m_window, [this] { showState(); });
  QObject::connect(m_view, &PageView::zoomChanged, &m_window, [this] {
    if (m_view->zoom().fit != Zoom::Fit::Several) m_singleZoom = m_view->zoom();
    showState();
  });
  QObject::connect(m_view, &PageView::pageClicked, &m_window, [this](int page) { visit(page); });
  QObject::connect(m_view, &PageView::pageOpened, &m_window, [this] { showSingle(); });
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
  addKey(QStringLiteral("firstPage"), QKeySequence(Qt::CTRL | Qt::Key_Home), [this] { visit(0); });
  addKey(QStringLiteral("lastPage"), QKeySequence(Qt::CTRL | Qt::Key_End), [this] { visit(m_pages - 1); });
  addKey(QStringLiteral("editPage"), QKeySequence(Qt::CTRL | Qt::Key_G), [this] { m_toolbar->editPage(); });
  addKey(QStringLiteral("findNext"), QKeySequence(Qt::Key_F3), [this] { m_find.step(1); });
  addKey(QStringLiteral("findPrevious"), QKeySequence(Qt::SHIFT | Qt::Key_F3), [this] { m_find.step(-1); });
}

void PreviewWindow::Parts::addKey(const QString& name, const QKeySequence& key,
                                  const std::function<void()>& action) {
  auto* keyed = new QAction(&m_window);
  keyed->setObjectName(name);
  keyed->setShortcut(key);
  keyed->setEnabled(m_pages > 0);
  m_window.addAction(keyed);
  QObject::connect(keyed, &QAction::triggered, &m_window, action);
}

void PreviewWindow::Parts::showState() {
  using Bar = PreviewToolbar;
  showTools(m_pages > 0);
  const int current = m_view->currentPage();
  const bool several = m_view->zoom().fit == Zoom::Fit::Several;
  m_toolbar->setToolChecked(Bar::Contents, m_contents->isVisibleTo(&m_window));
  m_toolbar->setToolChecked(Bar::SinglePage, !several);
  m_toolbar->setToolChecked(Bar::ManyPages, several);
  m_toolbar->showZoom(m_view->zoom());
  m_toolbar->showPage(current, m_pages);
  if (m_pages > 0) m_contents->showCurrent(current);
}

void PreviewWindow::Parts::showTools(bool any) {
  using Bar = PreviewToolbar;
  const int current = m_view->currentPage();
  const double percent = any ? m_view->shownPercent() : 0;
  for (const Bar::Place place : {Bar::Contents, Bar::Print, Bar::Copy, Bar::Find, Bar::SinglePage,
                                 Bar::ZoomBox, Bar::PageBox, Bar::SavePdf}) {
    m_toolbar->setToolEnabled(place, any);
  }
  m_toolbar->setToolEnabled(Bar::ManyPages, m_pages > 1);
  m_toolbar->setToolEnabled(Bar::ZoomOut, any && percent > smallestPercent);
  m_toolbar->setToolEnabled(Bar::ZoomIn, any && percent < largestPercent);
  m_toolbar->setToolEnabled(Bar::Previous, current > 0);
  m_toolbar->setToolEnabled(Bar::Next, current + 1 < m_pages);
  m_toolbar->setToolEnabled(Bar::Back, m_history.canGoBack());
  m_toolbar->setToolEnabled(Bar::Forward, m_history.canGoForward());
}

void PreviewWindow::Parts::visit(int page) {
  const int from = m_view->currentPage();
  m_view->goToPage(page);
  m_history.visit(from, m_view->currentPage());
  showState();
}

void PreviewWindow::Parts::goToText(const QString& text) {
  const int page = pageOfText(text, m_pages);
  if (page >= 0) visit(page);
  m_view->setFocus();
}

void PreviewWindow::Parts::showContents() {
  m_contents->setVisible(m_contents->isHidden());
  showState();
  (m_contents->isHidden() ? static_cast<QWidget*>(m_view) : m_contents)->setFocus();
}

void PreviewWindow::Parts::showSingle() {
  m_view->setZoom(m_singleZoom);
  showState();
}

void PreviewWindow::Parts::copyPage() {
  const int page = m_view->currentPage();
  {
    const graphics::WaitCursor wait;
    QGuiApplication::clipboard()->setMimeData(pageCopy(m_view->document(), page).release());
  }
  QWidget* button = m_toolbar->widgetForAction(m_toolbar->tool(PreviewToolbar::Copy));
  QToolTip::showText(button->mapToGlobal(QPoint(0, button->height())),
                     QStringLiteral("第 %1 页已拷贝为图片和文字").arg(page + 1), button);
}

bool PreviewWindow::Parts::escape() {
  if (m_toolbar->isEditingPage()) {
    m_view->setFocus();
    return true;
  }
  if (!m_find.isOpen()) return false;
  m_find.close();
  return true;
}

PreviewWindow::PreviewWindow(report::Document document, const report::Toolbar& toolbar, QWidget* parent)
    : QDialog(parent), m_parts(std::make_unique<Parts>(*this, std::move(document), toolbar)) {}

PreviewWindow::~PreviewWindow() = default;

void PreviewWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape && m_parts->escape()) return;
  QDialog::keyPressEvent(event);
}

}  // namespace preview
