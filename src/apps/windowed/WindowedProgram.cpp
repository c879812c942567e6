#include "apps/windowed/WindowedProgram.h"

#include <algorithm>

#include <QLibraryInfo>
#include <QLocale>
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

/// What Qt's own translation lacks.
class MissingWords : public QTranslator {
 public:
  using QTranslator::QTranslator;

  QString translate(const char* context, const char* text, const char* comment, int count) const override {
    const bool isFolder = QByteArrayView(context) == "QAbstractFileIconProvider" &&
                          (QByteArrayView(text) == "Folder" || QByteArrayView(text) == "File Folder");
    return isFolder ? QStringLiteral("文件夹") : QTranslator::translate(context, text, comment, count);
  }
  [[nodiscard]] bool isEmpty() const override { return false; }
};

void useChinese(QCoreApplication& application) {
  // Dates and kinds of files in the file boxes speak the language of everything else.
  QLocale::setDefault(QLocale(QLocale::Chinese, QLocale::China));
  QCoreApplication::installTranslator(new MissingWords(&application));
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
