#include "apps/windowed/WindowedProgram.h"

#include <algorithm>

#include <QLibraryInfo>
#include <QTranslator>

#include "graphics/Fonts.h"
#include "runtime/Clock.h"
#include "runtime/ProgramDirectory.h"

namespace {

const QString homeOption = QStringLiteral("home");

void describe(QCommandLineParser& parser, const WindowedProgram& program) {
  parser.setApplicationDescription(program.description);
  parser.addHelpOption();
  parser.addVersionOption();
  parser.addOption({homeOption, program.homeHelp, QStringLiteral("目录")});
  parser.addOptions(program.options);
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

void showText(int argc, char** argv, const WindowedProgram& program) {
  QCoreApplication application(argc, argv);
  useChinese(application);
  QCommandLineParser parser;
  describe(parser, program);
  parser.process(application);
}

}  // namespace

int runWindowed(int argc, char** argv, const WindowedProgram& program,
                const std::function<int(const QCommandLineParser&)>& run) {
  runtime::nameTimeZone();
  QCoreApplication::setApplicationName(program.name);
  QCoreApplication::setApplicationVersion(program.version);
  QGuiApplication::setDesktopFileName(program.name);
  if (wantsTextOnly(argc, argv)) showText(argc, argv, program);
  QApplication application(argc, argv);
  useChinese(application);
  QCommandLineParser parser;
  describe(parser, program);
  parser.process(application);
  runtime::chooseAppPath(parser.value(homeOption));
  QApplication::setFont(graphics::userInterfaceFont());
  return run(parser);
}
