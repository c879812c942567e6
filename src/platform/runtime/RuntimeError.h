#pragma once

#include <exception>

#include <QByteArray>
#include <QString>

namespace runtime {

/// Numbers of the run-time's own errors; a library's error keeps the number its layer gives it.
enum class ErrorNumber {
  InvalidCall = 5,
  Overflow = 6,
  SubscriptOutOfRange = 9,
  TypeMismatch = 13,
  FileNotFound = 53,
  FileIo = 57,
  FileAccess = 75,
  NoObject = 91,
  InvalidUseOfNull = 94,
  DuplicateKey = 457,
  InvalidPicture = 481,
};

/// The one family of exceptions that the platform throws. The description is in the user's language and
/// keeps the words of the library that failed.
class RuntimeError : public std::exception {
 public:
  RuntimeError(int number, const QString& description);
  RuntimeError(ErrorNumber number, const QString& description);

  [[nodiscard]] int number() const noexcept { return m_number; }
  [[nodiscard]] const QString& description() const noexcept { return m_description; }
  /// The description as UTF-8.
  [[nodiscard]] const char* what() const noexcept override { return m_what.constData(); }

 private:
  int m_number;
  QString m_description;
  QByteArray m_what;
};

}  // namespace runtime
