#include "graphics/EmfConverter.h"

#include <sys/resource.h>

#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryFile>

#include "graphics/EmfPicture.h"
#include "runtime/SystemWords.h"

namespace graphics {
namespace {

constexpr int conversionTime = 5000;
constexpr rlim_t largestSvg = 16 * 1024 * 1024;
constexpr rlim_t mostMemory = 512 * 1024 * 1024;

[[noreturn]] void fail(const QString& reason) {
  throw EmfFailure{reason};
}

QString converter() {
  QString program = QStandardPaths::findExecutable(QStringLiteral("emf2svg-conv"));
  if (program.isEmpty()) fail(QStringLiteral("显示 EMF 图元文件需要软件包 emf2svg，请先安装"));
  return program;
}

/// Runs in the child, before the program begins.
void limitChild() {
  const rlimit memory{mostMemory, mostMemory};
  const rlimit seconds{conversionTime / 1000, conversionTime / 1000};
  const rlimit size{largestSvg, largestSvg};
  const rlimit none{0, 0};
  setrlimit(RLIMIT_AS, &memory);
  setrlimit(RLIMIT_CPU, &seconds);
  setrlimit(RLIMIT_FSIZE, &size);
  setrlimit(RLIMIT_CORE, &none);
}

void openTemporary(QTemporaryFile& file, const QByteArray& bytes) {
  if (!file.open() || file.write(bytes) != bytes.size() || !file.flush()) {
    fail(QStringLiteral("临时文件无法写入：%1").arg(runtime::systemWords(file.errorString())));
  }
}

void convert(const QString& from, const QString& to) {
  QProcess process;
  process.setStandardInputFile(QProcess::nullDevice());
  process.setStandardOutputFile(QProcess::nullDevice());
  process.setStandardErrorFile(QProcess::nullDevice());
  process.setChildProcessModifier(limitChild);
  process.start(converter(), {QStringLiteral("-i"), from, QStringLiteral("-o"), to});
  if (!process.waitForFinished(conversionTime) && process.state() != QProcess::NotRunning) {
    process.kill();
    process.waitForFinished();
    fail(QStringLiteral("EMF 图元文件转换超时"));
  }
  if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
    fail(QStringLiteral("EMF 图元文件已损坏或过于复杂，无法转换"));
  }
}

}  // namespace

QByteArray svgOfEmf(const QByteArray& metafile) {
  QTemporaryFile input;
  QTemporaryFile output;
  openTemporary(input, metafile);
  openTemporary(output, {});
  convert(input.fileName(), output.fileName());
  return output.readAll();
}

}  // namespace graphics
