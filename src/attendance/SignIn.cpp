#include "attendance/SignIn.h"

#include <memory>
#include <thread>
#include <tuple>

#include "ado/Transaction.h"
#include "attendance/clsPresence.h"
#include "foundation/Attempt.h"
#include "foundation/GlobalDefine.h"
#include "foundation/clsDbConn.h"
#include "foundation/mdMain.h"
#include "runtime/Clock.h"
#include "runtime/RuntimeError.h"

namespace {

/// What the person is told; `seconds` are those that are left of a repeated scan's minute.
QString textOf(std::int16_t result, int seconds) {
  switch (result) {
    case clsPresence::SignInWritten:
      return QStringLiteral("签到成功");
    case clsPresence::SignOutWritten:
      return QStringLiteral("签退成功");
    case clsPresence::AlreadySignedOut:
      return QStringLiteral("今日已签退，不再记录");
    case clsPresence::RepeatedScan:
      return QStringLiteral("请勿重复刷卡（还需 %1 秒）").arg(seconds);
    default:
      return QStringLiteral("记录失败，请联系管理员");
  }
}

QDateTime wholeSeconds(const QDateTime& moment) {
  return moment.addMSecs(-moment.time().msec());
}

SignInAnswer answer(std::int16_t result, const QDateTime& moment, const runtime::Failure& failure,
                    int seconds = 0) {
  return {result, textOf(result, seconds), moment, failure};
}

/// The shared connection. A file that was deleted or moved while it was open would take the record with it
/// unseen.
std::shared_ptr<ado::Connection> connectionToFile() {
  if (!CheckDatabaseFile()) {
    gConnection.reset();
    throw runtime::RuntimeError(runtime::ErrorNumber::FileNotFound,
                                QStringLiteral("找不到数据库文件：%1").arg(databaseFile()),
                                runtime::FailureKind::Missing);
  }
  auto connection = clsDbConn().GetDbConn();
  std::ignore = ado::required(connection).State();
  return connection;
}

SignInAnswer apply(ado::Transaction& transaction, const QString& number, const QDateTime& now) {
  clsPresence presence;
  presence.setENUMBER(number);
  std::int16_t result = presence.Add(now);
  runtime::Failure failure{presence.lastFailure(), presence.lastFailureKind()};
  if (result == clsPresence::SignInWritten || result == clsPresence::SignOutWritten) {
    result = attempt(failure, std::int16_t{clsPresence::WriteFailed}, [&] {
      transaction.commit();
      return result;
    });
  }
  return answer(result, now, failure, presence.secondsLeft());
}

}  // namespace

SignIn::SignIn() : SignIn([](std::chrono::milliseconds time) { std::this_thread::sleep_for(time); }) {}

SignInAnswer SignIn::sign(const QString& number) const {
  SignInAnswer given;
  runtime::Failure failure;
  const bool ran = attempt(failure, false, [&] {
    const std::shared_ptr<ado::Connection> connection = connectionToFile();
    given = signOn(*connection, number);
    return true;
  });
  return ran ? given : failed(failure);
}

SignInAnswer SignIn::signOn(ado::Connection& connection, const QString& number) const {
  for (;;) {
    waitOutMidnight();
    ado::Transaction transaction(connection);
    const QDateTime now = runtime::now();
    // The lock may have been long in coming.
    if (leftOfMidnight(now).count() == 0) return apply(transaction, number, wholeSeconds(now));
  }
}

void SignIn::waitOutMidnight() const {
  for (auto left = leftOfMidnight(runtime::now()); left.count() > 0; left = leftOfMidnight(runtime::now())) {
    m_sleep(left);
  }
}

SignInAnswer SignIn::unknown(const QString& code) {
  return {SignInAnswer::unknownCard, QStringLiteral("未登记的卡号：%1").arg(code), runtime::now(), {}};
}

SignInAnswer SignIn::failed(const runtime::Failure& why) {
  return answer(clsPresence::NotChecked, runtime::now(), why);
}

std::chrono::milliseconds leftOfMidnight(const QDateTime& now) {
  constexpr int second = 1000;
  const int passed = now.time().msecsSinceStartOfDay();
  return std::chrono::milliseconds(passed < second ? second - passed : 0);
}
