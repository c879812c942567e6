#include <cstdio>
#include <memory>

#include "apps/windowed/WindowedProgram.h"
#include "dialogs/QtDialogHost.h"
#include "foundation/GlobalDefine.h"
#include "foundation/HelpFiles.h"
#include "foundation/mdMain.h"
#include "printing/OutputFile.h"
#include "runtime/OutputGuard.h"
#include "runtime/ProgramDirectory.h"
#include "runtime/RuntimeError.h"
#include "shell/DesktopShell.h"
#include "spooler/CupsHost.h"
#include "ui/frmMain.h"

namespace {

const QString screenshotOption = QStringLiteral("screenshot");

WindowedProgram program() {
  return {.name = QStringLiteral("attendance"),
          .version = QStringLiteral(ATTENDANCE_VERSION),
          .description = QStringLiteral("签到系统：管理部门和员工，打印签到卡。"),
          .homeHelp = QStringLiteral("程序目录：attendance.ini 和照片文件所在的目录；"
                                     "不给出时取环境变量 ATTENDANCE_HOME，再取程序所在目录。"),
          .options = {{screenshotOption, QStringLiteral("列表载入后把主窗口存成 PNG 图片并退出。"),
                       QStringLiteral("文件")}}};
}

void saveScreenshot(frmMain& form, const QString& fileName) {
  // The list places its scroll bars a turn after its rows.
  QCoreApplication::processEvents();
  const bool saved = form.grab().save(fileName, "PNG");
  if (!saved) std::fprintf(stderr, "图片未能写入：%s\n", fileName.toUtf8().constData());
  QCoreApplication::exit(saved ? 0 : 1);
}

std::unique_ptr<MainForm> makeMainForm(const QString& screenshot) {
  auto form = std::make_unique<frmMain>();
  if (!screenshot.isEmpty()) {
    QObject::connect(
        form.get(), &frmMain::Loaded, form.get(),
        [&form = *form, screenshot] { saveScreenshot(form, screenshot); }, Qt::QueuedConnection);
  }
  return form;
}

/// Homes made before, or by an older version, get the help of this one. Without it the program still works.
void refreshHelp() {
  try {
    HelpFiles().refresh(runtime::AppPath());
  } catch (const runtime::RuntimeError& error) {
    std::fprintf(stderr, "帮助未能放入程序目录：%s\n", error.description().toUtf8().constData());
  }
}

int run(const QCommandLineParser& parser) {
  dialogs::QtDialogHost boxes;
  shell::DesktopShell desktop;
  spooler::CupsHost printers;
  const QString screenshot = parser.value(screenshotOption);
  // Nobody sits before a screenshot: messages go to standard error.
  if (screenshot.isEmpty()) dialogs::installHost(&boxes);
  shell::installHost(&desktop);
  spooler::installHost(&printers);
  runtime::installOutputGuard(refuseOwnFile);

  const bool started = Main([&screenshot] {
    refreshHelp();
    return makeMainForm(screenshot);
  });
  const int result = started ? QApplication::exec() : 1;
  gMainForm.reset();
  gConnection.reset();
  spooler::installHost(nullptr);
  shell::installHost(nullptr);
  dialogs::installHost(nullptr);
  return result;
}

}  // namespace

int main(int argc, char** argv) {
  return runWindowed(argc, argv, program(), run);
}
