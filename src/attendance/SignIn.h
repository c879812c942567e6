#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <utility>

#include <QDateTime>
#include <QString>

#include "runtime/RuntimeError.h"

namespace ado {
class Connection;
}

/// What became of one scanned card.
struct SignInAnswer {
  /// No result of the rule: the card is nobody's.
  static constexpr std::int16_t unknownCard = 0;

  /// A clsPresence::Result, or unknownCard.
  std::int16_t result = 0;
  /// What to tell the person.
  QString text{};
  /// When the rule ran, and what it wrote if it wrote.
  QDateTime moment{};
  /// What went wrong, for whoever looks after the program; empty when nothing did.
  runtime::Failure failure{};

  /// Whether the rule gave its answer, be it that nothing was to be written.
  [[nodiscard]] bool succeeded() const { return result > 0; }
};

/// Applies the sign-in rule where other programs write to the same database: checking and writing are one
/// transaction, and the rule never runs within the second 00:00:00, in which it takes every day for today.
class SignIn {
 public:
  using Sleep = std::function<void(std::chrono::milliseconds)>;

  /// Sleeps by blocking the thread.
  SignIn();
  explicit SignIn(Sleep sleep) : m_sleep(std::move(sleep)) {}

  /// Signs the employee `number` in or out as the rule has it. Throws nothing of the platform: what fails is
  /// in the answer, and was not stored. Within the second 00:00:00 it waits for 00:00:01.
  [[nodiscard]] SignInAnswer sign(const QString& number) const;
  /// Waits until the rule, and what asks for today, may run.
  void waitOutMidnight() const;

  /// The answer to a code that is nobody's.
  [[nodiscard]] static SignInAnswer unknown(const QString& code);
  /// The answer when it could not be found out whose a card is.
  [[nodiscard]] static SignInAnswer failed(const runtime::Failure& why);

 private:
  [[nodiscard]] SignInAnswer signOn(ado::Connection& connection, const QString& number) const;

  Sleep m_sleep;
};

/// How long the rule must not run yet at `now`: what is left of the second 00:00:00, otherwise nothing.
[[nodiscard]] std::chrono::milliseconds leftOfMidnight(const QDateTime& now);
