#pragma once

#include <QString>
#include <QStringList>

/// What a command did.
struct Outcome {
  int code = 0;
  QString out;
  QString err;
};

/// Runs the command line in this process; `arguments` must name the home where one is needed.
[[nodiscard]] Outcome run(const QStringList& arguments);
/// As run(), with --home in front.
[[nodiscard]] Outcome runIn(const QString& home, const QStringList& arguments);
