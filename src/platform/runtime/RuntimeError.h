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

/// What a failure means to whoever decides what to do or to say, whatever layer it comes from.
enum class FailureKind {
  Other,
  /// Another program held it until the wait was over: the same may well succeed a moment later.
  Busy,
  /// There is no such file.
  Missing,
  /// What was open is not there any more, or another has taken its place: it is to be opened anew.
  Lost,
  Damaged,
  /// The disk, or the quota on it.
  Full,
  ReadOnly,
  /// The password is wrong, or what it is tried on is damaged: the two cannot always be told apart.
  WrongPassword,
  /// It is not what it was taken for.
  Foreign,
  /// A newer version of the program has made it.
  Newer,
  /// The system or the rules of the data do not allow it.
  Refused,
  /// What is to be unique is there already.
  Duplicate,
};

/// The one family of exceptions that the platform throws. The description is in the user's language and
/// keeps the words of the library that failed.
class RuntimeError : public std::exception {
 public:
  RuntimeError(int number, const QString& description, FailureKind kind = FailureKind::Other);
  RuntimeError(ErrorNumber number, const QString& description, FailureKind kind = FailureKind::Other);

  /// The same failure in other words.
  [[nodiscard]] RuntimeError reworded(const QString& description) const;

  [[nodiscard]] int number() const noexcept { return m_number; }
  [[nodiscard]] FailureKind kind() const noexcept { return m_kind; }
  [[nodiscard]] const QString& description() const noexcept { return m_description; }
  /// The description as UTF-8.
  [[nodiscard]] const char* what() const noexcept override { return m_what.constData(); }

 private:
  int m_number;
  FailureKind m_kind;
  QString m_description;
  QByteArray m_what;
};

/// A run-time error as a status that failed remembers it.
struct Failure {
  /// The description; empty when nothing failed.
  QString words{};
  FailureKind kind = FailureKind::Other;

  [[nodiscard]] bool isEmpty() const { return words.isEmpty(); }
  void clear() { *this = {}; }
};

}  // namespace runtime
