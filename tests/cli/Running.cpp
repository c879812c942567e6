#include "cli/Running.h"

#include "cli/CommandLine.h"
#include "runtime/ProgramDirectory.h"

Outcome run(const QStringList& arguments) {
  const QString before = runtime::AppPath();
  Outcome outcome;
  QTextStream out(&outcome.out);
  QTextStream err(&outcome.err);
  const cli::Streams streams{out, err};
  cli::CommandLine line(QStringLiteral("1.2.3"));
  const std::optional<int> finished = line.parse(arguments, streams);
  outcome.code = finished ? *finished : line.run(streams);
  out.flush();
  err.flush();
  runtime::setAppPath(before);
  return outcome;
}

Outcome runIn(const QString& home, const QStringList& arguments) {
  return run(QStringList{QStringLiteral("--home"), home} + arguments);
}
