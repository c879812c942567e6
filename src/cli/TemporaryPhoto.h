#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryFile>

namespace cli {

/// A photo in a file of its own in the program directory, to be named to an employee object: that object
/// deletes the file, which must therefore never be one of the user's. What is left of it goes with this
/// object.
class TemporaryPhoto {
 public:
  /// Throws runtime::RuntimeError when the file cannot be written.
  explicit TemporaryPhoto(const QByteArray& bytes);

  [[nodiscard]] QString path() const { return m_file.fileName(); }

 private:
  QTemporaryFile m_file;
};

}  // namespace cli
