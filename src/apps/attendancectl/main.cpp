#include <clocale>
#include <cstdio>
#include <langinfo.h>
#include <memory>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QTemporaryDir>

#include "cli/CommandLine.h"
#include "runtime/Clock.h"

namespace {

/// Arguments and messages are UTF-8. Qt complains at every start in a locale that is not.
void useUtf8() {
  std::setlocale(LC_ALL, "");
  if (qstrcmp(nl_langinfo(CODESET), "UTF-8") != 0) qputenv("LC_ALL", "C.UTF-8");
}

/// Whether it is a directory of the user's own that nobody else may enter: Qt refuses any other.
bool isPrivateDirectory(const QString& path) {
  const QFileInfo info(path);
  constexpr auto others = QFileDevice::ReadGroup | QFileDevice::WriteGroup | QFileDevice::ExeGroup |
                          QFileDevice::ReadOther | QFileDevice::WriteOther | QFileDevice::ExeOther;
  return !path.isEmpty() && info.isDir() && info.ownerId() == ::geteuid() &&
         (info.permissions() & others) == 0;
}

/// What drawing needs where nobody is logged in to a desktop, as in a timer's job.
class DrawingEnvironment {
 public:
  DrawingEnvironment() {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    if (isPrivateDirectory(qEnvironmentVariable("XDG_RUNTIME_DIR"))) return;
    m_runtimeDirectory = std::make_unique<QTemporaryDir>();
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(m_runtimeDirectory->path()));
  }

 private:
  std::unique_ptr<QTemporaryDir> m_runtimeDirectory;
};

int runCommand(int argc, char** argv, cli::CommandLine& line, const cli::Streams& streams) {
  if (!line.drawsPictures()) {
    const QCoreApplication application(argc, argv);
    return line.run(streams);
  }
  const DrawingEnvironment environment;
  const QGuiApplication application(argc, argv);
  return line.run(streams);
}

}  // namespace

int main(int argc, char** argv) {
  useUtf8();
  runtime::nameTimeZone();
  QFile standardOutput;
  if (!standardOutput.open(stdout, QIODevice::WriteOnly)) return cli::Failed;
  QTextStream out(&standardOutput);
  QTextStream err(stderr);
  const cli::Streams streams{out, err};

  QStringList arguments;
  for (int i = 1; i < argc; ++i) arguments.append(QString::fromUtf8(argv[i]));
  cli::CommandLine line(QStringLiteral(ATTENDANCE_VERSION));
  const std::optional<int> finished = line.parse(arguments, streams);
  const int code = finished ? *finished : runCommand(argc, argv, line, streams);

  out.flush();
  if (out.status() == QTextStream::Ok && standardOutput.flush()) return code;
  err << QStringLiteral("无法写入标准输出\n");
  return cli::Failed;
}
