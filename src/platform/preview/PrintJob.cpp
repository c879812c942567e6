#include "preview/PrintJob.h"

#include <QDir>
#include <QTemporaryFile>

#include "report/Pdf.h"
#include "runtime/RuntimeError.h"
#include "runtime/SystemWords.h"

namespace preview {

namespace {

[[noreturn]] void fail(const QFileDevice& file) {
  throw runtime::RuntimeError(runtime::ErrorNumber::FileIo, QStringLiteral("不能在临时文件夹“") +
                                                                QDir::tempPath() +
                                                                QStringLiteral("”中准备打印的文件：") +
                                                                runtime::systemWords(file.errorString()));
}

bool prepare(const report::Document& document, const PrintChoice& choice, QTemporaryFile& pdf,
             const PrintProgress& progress) {
  const auto told = [&progress](int done, int total) {
    const QString what = QStringLiteral("正在准备第 %1 页，共 %2 页").arg(qMin(done + 1, total)).arg(total);
    return progress(what, done, total);
  };
  if (!pdf.open()) fail(pdf);
  if (!report::writePages(document, choice.pages, pdf, told)) return false;
  if (!pdf.flush() || !pdf.seek(0)) fail(pdf);
  return true;
}

}  // namespace

std::optional<int> printPages(const report::Document& document, const PrintChoice& choice,
                              const PrintProgress& progress) {
  constexpr qint64 portion = 1024;
  QTemporaryFile pdf(QDir::tempPath() + QStringLiteral("/attendance-XXXXXX.pdf"));
  if (!prepare(document, choice, pdf, progress)) return std::nullopt;
  return spooler::submit(choice.job, pdf, [&progress](qint64 done, qint64 total) {
    return progress(QStringLiteral("正在交给打印机"), static_cast<int>(done / portion),
                    static_cast<int>(total / portion));
  });
}

}  // namespace preview
