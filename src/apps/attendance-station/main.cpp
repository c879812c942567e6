#include <chrono>

#include "apps/windowed/WindowedProgram.h"
#include "dialogs/QtDialogHost.h"
#include "foundation/GlobalDefine.h"
#include "sound/AlsaHost.h"
#include "station/frmStation.h"
#include "store/SqlCipherEngine.h"

namespace {

/// Nobody stands longer than that before a card reader without an answer.
constexpr std::chrono::milliseconds longestWait{1000};

const QString fullScreenOption = QStringLiteral("full-screen");

WindowedProgram program() {
  return {.name = QStringLiteral("attendance-station"),
          .version = QStringLiteral(ATTENDANCE_VERSION),
          .description = QStringLiteral("签到窗口：刷卡签到和签退。"),
          .homeHelp = QStringLiteral("程序目录：attendance.ini 和照片文件所在的目录，不要与主窗口共用；"
                                     "不给出时取环境变量 ATTENDANCE_HOME，再取程序所在目录。"),
          .options = {{fullScreenOption, QStringLiteral("全屏显示；也可以按 F11 切换。")}}};
}

int showStation(bool fullScreen) {
  frmStation form;
  if (fullScreen) {
    form.showFullScreen();
  } else {
    form.show();
  }
  return QApplication::exec();
}

int run(const QCommandLineParser& parser) {
  dialogs::QtDialogHost boxes;
  sound::AlsaHost speaker;
  store::SqlCipherEngine engine(longestWait);
  dialogs::installHost(&boxes);
  sound::installHost(&speaker);
  store::installEngine(&engine);
  const int result = showStation(parser.isSet(fullScreenOption));
  gConnection.reset();
  store::installEngine(nullptr);
  sound::installHost(nullptr);
  dialogs::installHost(nullptr);
  return result;
}

}  // namespace

int main(int argc, char** argv) {
  return runWindowed(argc, argv, program(), run);
}
