#include "cli/SignCommand.h"

#include <cstdio>

#include <QFile>

#include "attendance/SignIn.h"
#include "cli/Cell.h"
#include "cli/Database.h"
#include "records/CardHolder.h"

namespace cli {

namespace {

const QString& standardInput() {
  static const QString mark = QStringLiteral("-");
  return mark;
}

SignInAnswer answerTo(const QString& code, const CardHolder& holder) {
  if (holder.employee) return SignIn().sign(holder.employee->ENUMBER());
  return holder.failure.isEmpty() ? SignIn::unknown(code) : SignIn::failed(holder.failure);
}

/// Signs with one card; whether the rule gave its answer.
bool sign(const QString& code, const Streams& streams) {
  const CardHolder holder = findCardHolder(code);
  const SignInAnswer answer = answerTo(code, holder);
  const QString number = holder.employee ? holder.employee->ENUMBER() : QString();
  const QString name = holder.employee ? holder.employee->ENAME() : QString();
  streams.out << cell(code) << '\t' << answer.result << '\t' << cell(answer.text) << '\t' << cell(number)
              << '\t' << cell(name) << '\n';
  // Whoever feeds the codes in one by one waits for the answer.
  streams.out.flush();
  for (const QString& failure : {answer.failure.words, holder.photoFailure}) {
    if (!failure.isEmpty()) streams.err << cell(code) << QStringLiteral("：") << failure << '\n';
  }
  return answer.succeeded();
}

/// One code a line; empty lines are none.
bool signAll(QFile& codes, const Streams& streams) {
  bool all = true;
  for (QByteArray line = codes.readLine(); !line.isEmpty(); line = codes.readLine()) {
    const QString code = QString::fromUtf8(line).trimmed();
    if (!code.isEmpty()) all = sign(code, streams) && all;
  }
  return all;
}

}  // namespace

QString SignCommand::summary() const {
  return QStringLiteral("按签到规则为条码签到或签退");
}

std::vector<Option> SignCommand::options() {
  return {{.name = QStringLiteral("BARCODE"),
           .valueName = QStringLiteral("条码"),
           .help = QStringLiteral("卡上的条码；写“-”则从标准输入读取，每行一个"),
           .target = &m_codes,
           .required = true}};
}

QString SignCommand::usageFault() const {
  if (m_codes.size() < 2 || !m_codes.contains(standardInput())) return {};
  return QStringLiteral("“-”不能与条码同时给出");
}

int SignCommand::run(const Streams& streams) {
  const auto connection = openDatabase();
  if (m_codes.first() == standardInput()) {
    // By its descriptor a pipe gives each line as it comes; by the C stream only many at a time.
    QFile codes;
    if (!codes.open(fileno(stdin), QIODevice::ReadOnly)) {
      streams.err << QStringLiteral("无法读取标准输入\n");
      return Failed;
    }
    return signAll(codes, streams) ? Done : Failed;
  }
  bool all = true;
  for (const QString& code : m_codes) all = sign(code, streams) && all;
  return all ? Done : Failed;
}

}  // namespace cli
