// The floor under window_start: a window with a menu bar and an empty list, and nothing behind it.

#include <cstdlib>

#include <QApplication>
#include <QEvent>
#include <QMainWindow>
#include <QMenuBar>
#include <QTreeWidget>

namespace {

/// Ends the process at once when the window has been painted: what follows (the list is filled, all is taken
/// down again) is not measured.
class EndOncePainted : public QObject {
 public:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint) {
      QMetaObject::invokeMethod(
          this, [] { std::_Exit(0); }, Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
  }
};

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  QMainWindow window;
  for (const char* menu : {"系统(&S)", "部门(&D)", "员工(&E)", "帮助(&H)"}) {
    window.menuBar()->addMenu(QString::fromUtf8(menu))->addAction(QStringLiteral("一"));
  }
  auto* list = new QTreeWidget;
  list->setHeaderLabels({QStringLiteral("编号"), QStringLiteral("姓名"), QStringLiteral("部门")});
  window.setCentralWidget(list);
  window.resize(800, 600);
  EndOncePainted painted;
  window.installEventFilter(&painted);
  window.show();
  return QApplication::exec();
}
