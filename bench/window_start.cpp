// The main window from the start of the process until it has been painted, then the end.

#include <QApplication>
#include <QEvent>

#include "foundation/GlobalDefine.h"
#include "graphics/Fonts.h"
#include "runtime/ProgramDirectory.h"
#include "ui/frmMain.h"

namespace {

class QuitOncePainted : public QObject {
 public:
  bool eventFilter(QObject* watched, QEvent* event) override {
    const bool handled = QObject::eventFilter(watched, event);
    if (event->type() == QEvent::Paint)
      QMetaObject::invokeMethod(qApp, &QApplication::quit, Qt::QueuedConnection);
    return handled;
  }
};

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  if (argc != 2) return 2;
  runtime::setAppPath(QString::fromLocal8Bit(argv[1]));
  QApplication::setFont(graphics::userInterfaceFont());
  frmMain form;
  QuitOncePainted painted;
  form.installEventFilter(&painted);
  form.Show();
  const int code = QApplication::exec();
  gConnection.reset();
  return code;
}
