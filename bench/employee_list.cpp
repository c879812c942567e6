// The main window opens on its employee list and goes again: the database is opened, the photo files are
// written, the list is filled, the photo files are deleted. Prints the seconds that took.

#include <chrono>
#include <cstdio>

#include <QApplication>

#include "foundation/GlobalDefine.h"
#include "runtime/ProgramDirectory.h"
#include "ui/frmMain.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  if (argc != 2) return 2;
  runtime::setAppPath(QString::fromLocal8Bit(argv[1]));
  auto form = std::make_unique<frmMain>();
  QObject::connect(form.get(), &frmMain::Loaded, &application, &QApplication::quit, Qt::QueuedConnection);

  const auto start = std::chrono::steady_clock::now();
  form->Show();
  QApplication::exec();
  form.reset();
  gConnection.reset();
  const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
  std::printf("seconds %.4f\n", taken.count());
  return 0;
}
