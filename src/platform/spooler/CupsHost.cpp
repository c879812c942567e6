#include "spooler/CupsHost.h"

#include <algorithm>
#include <array>
#include <cups/cups.h>

#include "runtime/RuntimeError.h"
#include "runtime/SystemWords.h"
#include "spooler/StateWords.h"

namespace spooler {

namespace {

constexpr int connectMilliseconds = 5000;
constexpr double answerSeconds = 10;
/// What the protocol allows a name.
constexpr qsizetype longestName = 255;
constexpr std::array<const char*, 3> sidesKeywords{CUPS_SIDES_ONE_SIDED, CUPS_SIDES_TWO_SIDED_PORTRAIT,
                                                   CUPS_SIDES_TWO_SIDED_LANDSCAPE};

const char* refusePassword(const char* /*prompt*/, http_t* /*http*/, const char* /*method*/,
                           const char* /*resource*/, void* /*data*/) {
  return nullptr;
}

[[noreturn]] void fail(const QString& description) {
  throw runtime::RuntimeError(runtime::ErrorNumber::FileIo, description);
}

/// What the last answer of the service said about `queue`.
QString refusal(const QString& queue) {
  const QString named = QStringLiteral("打印机“") + queue + QStringLiteral("”");
  switch (cupsLastError()) {
    case IPP_STATUS_ERROR_NOT_ACCEPTING_JOBS:
      return named + QStringLiteral("现在不接受打印任务。");
    case IPP_STATUS_ERROR_NOT_FOUND:
    case IPP_STATUS_ERROR_GONE:
      return named + QStringLiteral("已经不存在。");
    case IPP_STATUS_ERROR_NOT_AUTHENTICATED:
    case IPP_STATUS_ERROR_NOT_AUTHORIZED:
    case IPP_STATUS_ERROR_FORBIDDEN:
    case IPP_STATUS_ERROR_CUPS_AUTHENTICATION_CANCELED:
      return named + QStringLiteral("不允许当前用户打印。");
    case IPP_STATUS_ERROR_DOCUMENT_FORMAT_NOT_SUPPORTED:
      return named + QStringLiteral("不能打印PDF文件。");
    case IPP_STATUS_ERROR_TOO_MANY_JOBS:
      return named + QStringLiteral("的任务太多，请稍后再试。");
    case IPP_STATUS_ERROR_SERVICE_UNAVAILABLE:
    case IPP_STATUS_ERROR_INTERNAL:
      return QStringLiteral("打印服务没有回应，") + named + QStringLiteral("无法使用。");
    default:
      return named + QStringLiteral("没有接受任务：") +
             runtime::systemWords(QString::fromUtf8(cupsLastErrorString()));
  }
}

struct HttpCloser {
  void operator()(http_t* http) const { httpClose(http); }
};
using Connection = std::unique_ptr<http_t, HttpCloser>;

/// A connection to the service; null when it does not answer.
Connection connection() {
  Connection http(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1,
                               connectMilliseconds, nullptr));
  if (http) httpSetTimeout(http.get(), answerSeconds, nullptr, nullptr);
  return http;
}

Connection requiredConnection() {
  Connection http = connection();
  if (!http) fail(QStringLiteral("连接不上打印服务（CUPS），它可能已停止。"));
  return http;
}

/// One queue, with what it says of itself.
class Target {
 public:
  explicit Target(const QString& queue)
      : m_http(requiredConnection()), m_queue(cupsGetNamedDest(http(), queue.toUtf8().constData(), nullptr)) {
    if (!m_queue) fail(QStringLiteral("打印机“") + queue + QStringLiteral("”已经不存在。"));
    m_info.reset(cupsCopyDestInfo(http(), m_queue.get()));
    if (!m_info) fail(refusal(queue));
  }

  [[nodiscard]] http_t* http() const { return m_http.get(); }
  [[nodiscard]] cups_dest_t* queue() const { return m_queue.get(); }
  [[nodiscard]] cups_dinfo_t* info() const { return m_info.get(); }

  [[nodiscard]] QByteArray preset(const char* option) const {
    ipp_attribute_t* common = cupsFindDestDefault(http(), queue(), info(), option);
    return {common != nullptr ? ippGetString(common, 0, nullptr) : nullptr};
  }
  [[nodiscard]] bool supports(const char* option, const char* value) const {
    return cupsCheckDestSupported(http(), queue(), info(), option, value) != 0;
  }

 private:
  struct QueueFreer {
    void operator()(cups_dest_t* queue) const { cupsFreeDests(1, queue); }
  };
  struct InfoFreer {
    void operator()(cups_dinfo_t* info) const { cupsFreeDestInfo(info); }
  };

  Connection m_http;
  std::unique_ptr<cups_dest_t, QueueFreer> m_queue;
  std::unique_ptr<cups_dinfo_t, InfoFreer> m_info;
};

/// A paper that can be printed to its edges has a second name, for which drivers enlarge the page.
QString plainMedia(const cups_size_t& size) {
  return QString::fromUtf8(size.media).remove(QLatin1String("_borderless"));
}

std::vector<Paper> papersOf(const Target& target) {
  std::vector<Paper> papers;
  const int count = cupsGetDestMediaCount(target.http(), target.queue(), target.info(), 0);
  for (int index = 0; index < count; ++index) {
    cups_size_t size{};
    if (cupsGetDestMediaByIndex(target.http(), target.queue(), target.info(), index, 0, &size) == 0) continue;
    const QString media = plainMedia(size);
    const auto same = [&media](const Paper& paper) { return paper.media == media; };
    if (std::none_of(papers.begin(), papers.end(), same))
      papers.push_back({media, {size.width, size.length}});
  }
  return papers;
}

QString defaultMediaOf(const Target& target) {
  cups_size_t size{};
  const int found = cupsGetDestMediaDefault(target.http(), target.queue(), target.info(), 0, &size);
  return found != 0 ? plainMedia(size) : QString();
}

int maximumCopiesOf(const Target& target) {
  ipp_attribute_t* copies = cupsFindDestSupported(target.http(), target.queue(), target.info(), CUPS_COPIES);
  int most = 1;
  if (copies != nullptr) ippGetRange(copies, 0, &most);
  return std::max(most, 1);
}

Sides sidesNamed(const QByteArray& keyword) {
  const auto found = std::find(sidesKeywords.begin(), sidesKeywords.end(), keyword);
  return found != sidesKeywords.end() ? static_cast<Sides>(found - sidesKeywords.begin()) : Sides::One;
}

/// The options of a job. What is not among them stays as the queue's owner set it up.
class Options {
 public:
  explicit Options(const Job& job) {
    // Cards are scanned and cut: nothing may be fitted to a paper.
    add("print-scaling", "none");
    add(CUPS_SIDES, sidesKeywords.at(static_cast<std::size_t>(job.sides)));
    add(CUPS_COPIES, QByteArray::number(job.copies));
    add("multiple-document-handling",
        job.collated ? "separate-documents-collated-copies" : "separate-documents-uncollated-copies");
    if (!job.media.isEmpty()) add(CUPS_MEDIA, job.media.toUtf8());
    if (job.color) add(CUPS_PRINT_COLOR_MODE, *job.color ? "color" : "monochrome");
  }
  ~Options() { cupsFreeOptions(m_count, m_options); }
  Options(const Options&) = delete;
  Options& operator=(const Options&) = delete;

  [[nodiscard]] int count() const { return m_count; }
  [[nodiscard]] cups_option_t* get() const { return m_options; }

 private:
  void add(const char* name, const QByteArray& value) {
    m_count = cupsAddOption(name, value.constData(), m_count, &m_options);
  }

  int m_count = 0;
  cups_option_t* m_options = nullptr;
};

/// A job that the queue has made and that gets its document. Dropped before finish() it is taken back.
class OpenJob {
 public:
  OpenJob(const Target& target, const Job& job) : m_target(target), m_queue(job.queue) {
    const Options options(job);
    const QByteArray title = cutUtf8(job.title, longestName);
    const ipp_status_t made = cupsCreateDestJob(target.http(), target.queue(), target.info(), &m_number,
                                                title.constData(), options.count(), options.get());
    if (made > IPP_STATUS_OK_CONFLICTING || m_number == 0) fail(refusal(m_queue));
  }
  ~OpenJob() {
    if (m_number != 0) takeBack();
  }
  OpenJob(const OpenJob&) = delete;
  OpenJob& operator=(const OpenJob&) = delete;

  void begin(const QString& title) {
    const QByteArray name = cutUtf8(title, longestName);
    const http_status_t status =
        cupsStartDestDocument(m_target.http(), m_target.queue(), m_target.info(), m_number, name.constData(),
                              CUPS_FORMAT_PDF, 0, nullptr, 1);
    if (status != HTTP_STATUS_CONTINUE) abandon();
  }
  void write(const QByteArray& bytes) {
    const auto size = static_cast<std::size_t>(bytes.size());
    if (cupsWriteRequestData(m_target.http(), bytes.constData(), size) != HTTP_STATUS_CONTINUE) abandon();
  }
  int finish() {
    const ipp_status_t taken = cupsFinishDestDocument(m_target.http(), m_target.queue(), m_target.info());
    if (taken > IPP_STATUS_OK_CONFLICTING) abandon();
    return std::exchange(m_number, 0);
  }

 private:
  /// Over a connection of its own: the other may be in the middle of the document.
  bool takeBack() {
    const int number = std::exchange(m_number, 0);
    const Connection http = connection();
    return http && cupsCancelDestJob(http.get(), m_target.queue(), number) <= IPP_STATUS_OK_CONFLICTING;
  }
  [[noreturn]] void abandon() {
    QString words = refusal(m_queue);
    const int number = m_number;
    if (!takeBack()) {
      words += QStringLiteral("任务 %1 可能还留在打印服务中，恢复后请检查。").arg(number);
    }
    fail(words);
  }

  const Target& m_target;
  QString m_queue;
  int m_number = 0;
};

struct ResponseDeleter {
  void operator()(ipp_t* response) const { ippDelete(response); }
};
using Response = std::unique_ptr<ipp_t, ResponseDeleter>;

/// What the service knows of the printer or job at `uri`, which `key` says.
Response attributesOf(http_t* http, ipp_op_t operation, const char* key, const QByteArray& uri) {
  ipp_t* request = ippNewRequest(operation);
  ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, key, nullptr, uri.constData());
  ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, cupsUser());
  return Response(cupsDoRequest(http, request, "/"));
}

QStringList texts(const Response& response, const char* name) {
  ipp_attribute_t* attribute = ippFindAttribute(response.get(), name, IPP_TAG_ZERO);
  QStringList values;
  for (int index = 0; index < ippGetCount(attribute); ++index) {
    values.append(QString::fromUtf8(ippGetString(attribute, index, nullptr)));
  }
  return values;
}

int number(const Response& response, const char* name) {
  return ippGetInteger(ippFindAttribute(response.get(), name, IPP_TAG_ENUM), 0);
}

JobState stateOf(int job, bool printerStopped) {
  switch (job) {
    case IPP_JSTATE_PENDING:
    case IPP_JSTATE_HELD:
      return printerStopped ? JobState::Stopped : JobState::Waiting;
    case IPP_JSTATE_PROCESSING:
      return printerStopped ? JobState::Stopped : JobState::Printing;
    case IPP_JSTATE_STOPPED:
      // The printer goes on, but without a job whose filters failed.
      return printerStopped ? JobState::Stopped : JobState::Failed;
    case IPP_JSTATE_CANCELED:
      return JobState::Cancelled;
    case IPP_JSTATE_ABORTED:
      return JobState::Failed;
    default:
      return JobState::Done;
  }
}

QString joined(QStringList words) {
  words.removeAll(QString());
  words.removeDuplicates();
  return words.join(QStringLiteral("，"));
}

}  // namespace

CupsHost::CupsHost(const QString& server) {
  if (!server.isEmpty()) cupsSetServer(server.toUtf8().constData());
  // The library's own way is to ask on the terminal.
  cupsSetPasswordCB2(refusePassword, nullptr);
}

std::vector<Queue> CupsHost::queues() {
  std::vector<Queue> queues;
  const Connection http = connection();
  if (!http) return queues;
  cups_dest_t* found = nullptr;
  const int count = cupsGetDests2(http.get(), &found);
  for (const cups_dest_t* queue = found; queue != found + count; ++queue) {
    // Variants with other settings, which other programs keep for themselves.
    if (queue->instance != nullptr) continue;
    const char* description = cupsGetOption("printer-info", queue->num_options, queue->options);
    queues.push_back(
        {QString::fromUtf8(queue->name), QString::fromUtf8(description), queue->is_default != 0});
  }
  cupsFreeDests(count, found);
  return queues;
}

Details CupsHost::details(const QString& queue) {
  const Target target(queue);
  const auto said = [&target](const char* name) {
    return QByteArray(cupsGetOption(name, target.queue()->num_options, target.queue()->options));
  };
  Details details;
  details.papers = papersOf(target);
  details.defaultMedia = defaultMediaOf(target);
  details.twoSided = target.supports(CUPS_SIDES, CUPS_SIDES_TWO_SIDED_PORTRAIT);
  details.sides = details.twoSided ? sidesNamed(target.preset(CUPS_SIDES)) : Sides::One;
  details.choosesColor =
      target.supports(CUPS_PRINT_COLOR_MODE, "color") && target.supports(CUPS_PRINT_COLOR_MODE, "monochrome");
  details.color = target.preset(CUPS_PRINT_COLOR_MODE) != "monochrome";
  details.maximumCopies = maximumCopiesOf(target);
  details.accepting = said("printer-is-accepting-jobs") != "false";
  details.stopped = said("printer-state").toInt() == IPP_PSTATE_STOPPED;
  details.complaint =
      printerComplaint(QString::fromUtf8(said("printer-state-reasons")).split(QLatin1Char(',')));
  return details;
}

std::optional<int> CupsHost::submit(const Job& job, QIODevice& pdf, const Progress& progress) {
  constexpr qint64 portion = 64 * 1024;
  const Target target(job.queue);
  OpenJob open(target, job);
  open.begin(job.title);
  const qint64 total = pdf.size() - pdf.pos();
  qint64 done = 0;
  while (done < total) {
    if (!progress(done, total)) return std::nullopt;
    const QByteArray bytes = pdf.read(portion);
    if (bytes.isEmpty())
      fail(QStringLiteral("读不回准备好的打印文件：") + runtime::systemWords(pdf.errorString()));
    open.write(bytes);
    done += bytes.size();
  }
  if (!progress(done, total)) return std::nullopt;
  return open.finish();
}

JobReport CupsHost::report(const QString& queue, int job) {
  const Connection http = requiredConnection();
  const QByteArray jobUri = "ipp://localhost/jobs/" + QByteArray::number(job);
  const Response said = attributesOf(http.get(), IPP_OP_GET_JOB_ATTRIBUTES, "job-uri", jobUri);
  const ipp_status_t answer = cupsLastError();
  if (answer == IPP_STATUS_ERROR_NOT_FOUND) return {JobState::Done, {}};
  if (!said || answer > IPP_STATUS_OK_CONFLICTING) fail(refusal(queue));
  const QByteArray printerUri = "ipp://localhost/printers/" + queue.toUtf8().toPercentEncoding();
  const Response printer = attributesOf(http.get(), IPP_OP_GET_PRINTER_ATTRIBUTES, "printer-uri", printerUri);
  const JobState state =
      stateOf(number(said, "job-state"), number(printer, "printer-state") == IPP_PSTATE_STOPPED);
  if (state == JobState::Stopped) {
    const QString complaint = printerComplaint(texts(printer, "printer-state-reasons"));
    return {state, joined(QStringList{complaint} + texts(printer, "printer-state-message"))};
  }
  QStringList words{jobReason(texts(said, "job-state-reasons"))};
  if (state == JobState::Failed) words += texts(said, "job-printer-state-message");
  return {state, joined(words)};
}

}  // namespace spooler
