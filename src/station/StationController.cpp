#include "station/StationController.h"

#include "attendance/clsPresence.h"
#include "foundation/GlobalDefine.h"
#include "foundation/mdMain.h"
#include "runtime/Clock.h"
#include "runtime/RuntimeError.h"
#include "station/ScanSplitter.h"

namespace {

using Kind = StationAnswer::Kind;

// In looks, of which there is one a second.
constexpr int usualReading = 60;
/// Reading may have waited a second in vain, in which nobody was answered.
constexpr int readingAfterFailure = 5;

Kind kindOf(std::int16_t result) {
  switch (result) {
    case clsPresence::SignInWritten:
      return Kind::SignedIn;
    case clsPresence::SignOutWritten:
      return Kind::SignedOut;
    case clsPresence::AlreadySignedOut:
      return Kind::AlreadySignedOut;
    case clsPresence::RepeatedScan:
      return Kind::RepeatedScan;
    case SignInAnswer::unknownCard:
      return Kind::UnknownCard;
    default:
      return Kind::Failed;
  }
}

StationAnswer busy(const QString& why) {
  return {.kind = Kind::Busy,
          .text = QStringLiteral("正忙，请再刷一次"),
          .moment = runtime::now(),
          .failure = why};
}

StationAnswer told(const SignInAnswer& answer) {
  const Kind kind = kindOf(answer.result);
  if (kind == Kind::Failed && answer.failure.kind == runtime::FailureKind::Busy) {
    return busy(answer.failure.words);
  }
  return {.kind = kind, .text = answer.text, .moment = answer.moment, .failure = answer.failure.words};
}

void addHolder(StationAnswer& answer, const CardHolder& holder) {
  answer.name = holder.employee->ENAME();
  answer.department = holder.employee->DNAME();
  QString photoFailure = holder.photoFailure;
  if (photoFailure.isEmpty()) {
    try {
      answer.photo = graphics::LoadPicture(holder.employee->HeadImg());
    } catch (const runtime::RuntimeError& error) {
      photoFailure = error.description();
    }
  }
  if (answer.failure.isEmpty()) answer.failure = photoFailure;
}

}  // namespace

StationAnswer StationController::scan(const QString& code) {
  if (!isCardCode(code)) return told(SignIn::unknown(code));
  if (!findDatabase()) return busy(m_trouble);
  StationAnswer answer = answerFor(findCardHolder(code), code);
  if (answer.kind == Kind::SignedIn) m_figures.add(answer.moment);
  if (answer.kind != Kind::Failed) return answer;
  if (!findDatabase()) return busy(answer.failure);
  // The file may have been exchanged for another: the next scan is to open it anew.
  gConnection.reset();
  return answer;
}

StationAnswer StationController::answerFor(const CardHolder& holder, const QString& code) {
  if (!holder.failure.isEmpty()) return told(SignIn::failed(holder.failure));
  if (!holder.employee) return told(SignIn::unknown(code));
  StationAnswer answer = told(m_signIn.sign(holder.employee->ENUMBER()));
  if (answer.kind != Kind::Busy) addHolder(answer, holder);
  return answer;
}

void StationController::look() {
  const QDateTime now = runtime::now();
  if (leftOfMidnight(now).count() > 0) return;
  if (!findDatabase()) return;
  --m_looksUntilReading;
  if (m_looksUntilReading <= 0 || (m_trouble.isEmpty() && !m_figures.areOf(now))) readFigures();
}

void StationController::readFigures() {
  const bool read = m_figures.load();
  m_trouble = read ? QString() : m_figures.lastFailure();
  m_looksUntilReading = read ? usualReading : readingAfterFailure;
}

bool StationController::findDatabase() {
  const bool wasMissing = m_isMissing;
  m_isMissing = !CheckDatabaseFile();
  if (m_isMissing) {
    m_trouble = QStringLiteral("找不到数据库文件：%1").arg(databaseFile());
    // What the open file would take is lost with it.
    gConnection.reset();
  } else if (wasMissing) {
    m_trouble.clear();
    m_looksUntilReading = 0;
  }
  return !m_isMissing;
}

bool StationController::clockIsBehind() const {
  return m_figures.isBefore(runtime::now());
}
