#pragma once

#include "spooler/Spooler.h"

namespace spooler {

/// The queues of CUPS. Waits a few seconds for a service that does not answer. Never asks for a password: a
/// queue that wants one refuses.
class CupsHost : public Host {
 public:
  /// `server`: the socket or host of the service; empty for the one of the system.
  explicit CupsHost(const QString& server = {});

  [[nodiscard]] std::vector<Queue> queues() override;
  [[nodiscard]] Details details(const QString& queue) override;
  [[nodiscard]] std::optional<int> submit(const Job& job, QIODevice& pdf, const Progress& progress) override;
  [[nodiscard]] JobReport report(const QString& queue, int job) override;
};

}  // namespace spooler
