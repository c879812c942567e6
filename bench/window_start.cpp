// The main window from the start of the process until it has been painted.

#include <cstdlib>

#include <QApplication>
#include <QEvent>

#include "graphics/Fonts.h"
#include "runtime/ProgramDirectory.h"
#include "ui/frmMain.h"

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
  QApplication application(argc, argv);
  if (argc != 2) return 2;
  runtime::setAppPath(QString::fromLocal8Bit(argv[1]));
  QApplication::setFont(graphics::userInterfaceFont());
  frmMain form;
  EndOncePainted painted;
  form.installEventFilter(&painted);
  form.Show();
  return QApplication::exec();
}
