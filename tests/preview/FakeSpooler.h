#pragma once

#include <algorithm>

#include "runtime/RuntimeError.h"
#include "spooler/Spooler.h"

/// Print queues that a test makes up; installed as long as it lives. Begins with one printer with A4 and A5.
class FakeSpooler : public spooler::Host {
 public:
  FakeSpooler() : m_before(spooler::installHost(this)) {
    known.papers = {{QStringLiteral("iso_a4_210x297mm"), {20990, 29704}},
                    {QStringLiteral("iso_a5_148x210mm"), {14817, 20990}}};
    known.defaultMedia = QStringLiteral("iso_a5_148x210mm");
    known.maximumCopies = 99;
  }
  ~FakeSpooler() override { spooler::installHost(m_before); }

  std::vector<spooler::Queue> printers{{QStringLiteral("pr1"), QStringLiteral("一楼"), false}};
  spooler::Details known;
  /// Of details(): the queue by this name is gone.
  QString gone;
  /// Why it takes no document; it takes it when empty.
  QString refusal;
  spooler::JobReport reported{spooler::JobState::Done, {}};

  std::vector<spooler::Job> jobs;
  QByteArray received;
  int asked = 0;

  /// How many pages the document has that was handed over.
  [[nodiscard]] qsizetype pagesReceived() const {
    return received.count("/Type /Page") - received.count("/Type /Pages");
  }

  [[nodiscard]] std::vector<spooler::Queue> queues() override { return printers; }
  [[nodiscard]] spooler::Details details(const QString& queue) override {
    if (queue == gone)
      throw runtime::RuntimeError(runtime::ErrorNumber::FileIo, QStringLiteral("已经不存在"));
    return known;
  }
  [[nodiscard]] std::optional<int> submit(const spooler::Job& job, QIODevice& pdf,
                                          const spooler::Progress& progress) override {
    if (!refusal.isEmpty()) throw runtime::RuntimeError(runtime::ErrorNumber::FileIo, refusal);
    if (!progress(0, pdf.size())) return std::nullopt;
    jobs.push_back(job);
    received = pdf.readAll();
    return static_cast<int>(jobs.size());
  }
  [[nodiscard]] spooler::JobReport report(const QString& /*queue*/, int /*job*/) override {
    ++asked;
    return reported;
  }

 private:
  spooler::Host* m_before;
};
