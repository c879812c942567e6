#include <algorithm>
#include <chrono>

#include <QApplication>
#include <QCommandLineParser>
#include <QLibraryInfo>
#include <QTranslator>

#include "dialogs/QtDialogHost.h"
#include "foundation/GlobalDefine.h"
#include "graphics/Fonts.h"
#include "runtime/ProgramDirectory.h"
#include "sound/AlsaHost.h"
#include "station/frmStation.h"
#include "store/SqlCipherEngine.h"

namespace {

/// Nobody stands longer than that before a card reader without an answer.
constexpr std::chrono::milliseconds longestWait{1000};

const QString homeOption = QStringLiteral("home");
const QString fullScreenOption = QStringLiteral("full-screen");

void describe(QCommandLineParser& parser) {
  parser.setApplicationDescription(QStringLiteral("签到窗口：刷卡签到和签退。"));
  parser.addHelpOption();
  parser.addVersionOption();
  parser.addOption({homeOption,
                    QStringLiteral("程序目录：attendance.ini 和照片文件所在的目录，不要与主窗口共用；"
                                   "不给出时取环境变量 ATTENDANCE_HOME，再取程序所在目录。"),
                    QStringLiteral("目录")});
  parser.addOption({fullScreenOption, QStringLiteral("全屏显示；也可以按 F11 切换。")});
}

/// Help and version are shown without a display.
bool wantsTextOnly(int argc, char** argv) {
  return std::any_of(argv + 1, argv + argc, [](const char* argument) {
    const QByteArrayView option(argument);
    return option == "--help" || option == "--help-all" || option == "-h" || option == "--version" ||
           option == "-v";
  });
}

void useChinese(QCoreApplication& application) {
  auto* translator = new QTranslator(&application);
  const QString directory = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
  if (translator->load(QStringLiteral("qtbase_zh_CN"), directory)) application.installTranslator(translator);
}

void showText(int argc, char** argv) {
  QCoreApplication application(argc, argv);
  useChinese(application);
  QCommandLineParser parser;
  describe(parser);
  parser.process(application);
}

int runStation(bool fullScreen) {
  frmStation form;
  if (fullScreen) {
    form.showFullScreen();
  } else {
    form.show();
  }
  return QApplication::exec();
}

int runProgram(QApplication& application) {
  useChinese(application);
  QCommandLineParser parser;
  describe(parser);
  parser.process(application);
  runtime::chooseAppPath(parser.value(homeOption));
  QApplication::setFont(graphics::userInterfaceFont());

  dialogs::QtDialogHost boxes;
  sound::AlsaHost speaker;
  store::SqlCipherEngine engine(longestWait);
  dialogs::installHost(&boxes);
  sound::installHost(&speaker);
  store::installEngine(&engine);
  const int result = runStation(parser.isSet(fullScreenOption));
  gConnection.reset();
  store::installEngine(nullptr);
  sound::installHost(nullptr);
  dialogs::installHost(nullptr);
  return result;
}

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication::setApplicationName(QStringLiteral("attendance-station"));
  QCoreApplication::setApplicationVersion(QStringLiteral(ATTENDANCE_VERSION));
  QGuiApplication::setDesktopFileName(QStringLiteral("attendance-station"));
  if (wantsTextOnly(argc, argv)) showText(argc, argv);
  QApplication application(argc, argv);
  return runProgram(application);
}
