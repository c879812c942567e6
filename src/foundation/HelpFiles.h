#pragma once

#include <QString>
#include <QStringList>

/// The help that comes with the programs: the compiled HELP.CHM, which a build without its compiler lacks,
/// and the same pages as help/*.html with their stylesheet.
class HelpFiles {
 public:
  /// Takes the help from the first of `places` that holds any; all of it comes from there.
  explicit HelpFiles(const QStringList& places = shippedPlaces());

  /// Where the programs' own help is looked for: beside the executable, then where a package puts it.
  [[nodiscard]] static QStringList shippedPlaces();

  /// The files that are there, relative to the place and later to the program directory ("help/index.html").
  [[nodiscard]] const QStringList& names() const { return m_names; }
  [[nodiscard]] bool hasPages() const;
  /// What is not there, as one line for the user; empty when all is.
  [[nodiscard]] QString missing() const;

  /// Writes the file `name` into `directory`, over an older one. Its directory must be there. Throws
  /// runtime::RuntimeError.
  void copy(const QString& name, const QString& directory) const;
  /// Makes the help in `directory` the one that comes with the programs, and leaves alone what is as it
  /// should be. Throws runtime::RuntimeError.
  void refresh(const QString& directory) const;

 private:
  QString m_place;
  QStringList m_names;
};
