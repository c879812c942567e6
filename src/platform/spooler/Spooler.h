#pragma once

#include <functional>
#include <optional>
#include <vector>

#include <QIODevice>
#include <QSize>
#include <QString>

/// The one seam for the system's print queues: what they are, what they can do, and finished documents handed
/// to them. Callers use the free functions; they forward to the installed host.
namespace spooler {

struct Queue {
  QString name;
  /// What its owner calls it; may be empty.
  QString description;
  bool isDefault = false;
};

struct Paper {
  /// The queue's own name for it.
  QString media;
  /// Hundredths of a millimetre, as the queue feeds it.
  QSize size;
};

enum class Sides { One, LongEdge, ShortEdge };

/// What a queue can do and how it is at the moment.
struct Details {
  /// Empty where the queue does not say.
  std::vector<Paper> papers;
  QString defaultMedia;
  bool twoSided = false;
  Sides sides = Sides::One;
  /// Whether it prints both in colour and in black.
  bool choosesColor = false;
  bool color = true;
  int maximumCopies = 1;
  bool accepting = true;
  /// Takes documents and keeps them until somebody starts it again.
  bool stopped = false;
  /// What the printer complains of, in the user's language; empty when it does not.
  QString complaint;
};

/// A document for a queue. It is printed at its true size, whatever the queue's habits are.
struct Job {
  QString queue;
  /// Cut to what a queue takes.
  QString title;
  /// One of the queue's papers; empty leaves it to the queue.
  QString media;
  int copies = 1;
  /// Copy by copy instead of page by page.
  bool collated = true;
  Sides sides = Sides::One;
  /// Nothing leaves it to the queue.
  std::optional<bool> color;
};

/// Stopped: the printer stands still, and the job waits for it.
enum class JobState { Waiting, Printing, Stopped, Done, Failed, Cancelled };

struct JobReport {
  JobState state = JobState::Waiting;
  /// Why it failed or stands still, as far as that is known.
  QString reason;
};

/// Tells how many bytes of the document are handed over; false stops.
using Progress = std::function<bool(qint64 done, qint64 total)>;

/// All but queues() throw runtime::RuntimeError: the service does not answer, the queue is gone or refuses.
class Host {
 public:
  Host() = default;
  Host(const Host&) = delete;
  Host& operator=(const Host&) = delete;
  virtual ~Host() = default;

  /// None where there is no print service.
  [[nodiscard]] virtual std::vector<Queue> queues() = 0;
  [[nodiscard]] virtual Details details(const QString& queue) = 0;
  /// Hands over `pdf` from its current position to its end. The job's number; nothing when `progress` stopped
  /// it. Unless a number is given, or the error says otherwise, nothing is printed.
  [[nodiscard]] virtual std::optional<int> submit(const Job& job, QIODevice& pdf,
                                                  const Progress& progress) = 0;
  /// How a job of the queue is; one that the service has forgotten is done.
  [[nodiscard]] virtual JobReport report(const QString& queue, int job) = 0;
};

/// Installs the host and returns the one before; the caller keeps ownership. Without a host there is no
/// queue.
Host* installHost(Host* host);

[[nodiscard]] std::vector<Queue> queues();
[[nodiscard]] Details details(const QString& queue);
[[nodiscard]] std::optional<int> submit(const Job& job, QIODevice& pdf, const Progress& progress);
[[nodiscard]] JobReport report(const QString& queue, int job);

}  // namespace spooler
