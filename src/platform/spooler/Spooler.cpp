#include "spooler/Spooler.h"

#include <utility>

#include "runtime/RuntimeError.h"

namespace spooler {

namespace {

Host* installed = nullptr;

Host& host() {
  if (installed != nullptr) return *installed;
  throw runtime::RuntimeError(runtime::ErrorNumber::NoObject, QStringLiteral("没有打印服务"));
}

}  // namespace

Host* installHost(Host* host) {
  return std::exchange(installed, host);
}

std::vector<Queue> queues() {
  return installed != nullptr ? installed->queues() : std::vector<Queue>();
}

Details details(const QString& queue) {
  return host().details(queue);
}

std::optional<int> submit(const Job& job, QIODevice& pdf, const Progress& progress) {
  return host().submit(job, pdf, progress);
}

JobReport report(const QString& queue, int job) {
  return host().report(queue, job);
}

}  // namespace spooler
