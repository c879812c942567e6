#pragma once

#include <functional>

#include <QApplication>
#include <QCommandLineParser>

/// What the programs with windows have in common before the first of them is shown.
struct WindowedProgram {
  /// The name of the executable, by which the desktop knows its windows too.
  QString name;
  QString version;
  /// What help says it is for.
  QString description;
  /// What help says about the program directory, which every program takes as --home.
  QString homeHelp;
  /// Its options besides.
  QList<QCommandLineOption> options;
};

/// Answers --help and --version without a display. Otherwise makes the application with its Chinese texts and
/// font, chooses the program directory, and gives what `run` gives.
[[nodiscard]] int runWindowed(int argc, char** argv, const WindowedProgram& program,
                              const std::function<int(const QCommandLineParser&)>& run);
