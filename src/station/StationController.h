#pragma once

#include <QString>

#include "attendance/SignIn.h"
#include "records/CardHolder.h"
#include "station/SignInFigures.h"
#include "station/StationAnswer.h"

/// What the station does, without its window: answers scans and keeps an eye on the database and the clock.
/// Whatever fails is in the answer or a note; no scan is kept for later.
class StationController {
 public:
  StationController() = default;
  explicit StationController(SignIn signIn) : m_signIn(std::move(signIn)) {}

  /// Applies the sign-in rule to the card with that code. Takes as long as the database makes it wait.
  [[nodiscard]] StationAnswer scan(const QString& code);
  /// To be called every second: notices whether the database is there, and reads the figures anew when the
  /// day changed and now and then, since others sign people in as well.
  void look();

  [[nodiscard]] const SignInFigures& figures() const { return m_figures; }
  /// Whether the clock stands before the latest sign-in.
  [[nodiscard]] bool clockIsBehind() const;
  [[nodiscard]] bool isDatabaseMissing() const { return m_isMissing; }
  /// Why the database is missing or the figures could not be read; empty when all is well.
  [[nodiscard]] const QString& trouble() const { return m_trouble; }

 private:
  [[nodiscard]] bool findDatabase();
  void readFigures();
  [[nodiscard]] StationAnswer answerFor(const CardHolder& holder, const QString& code);

  SignIn m_signIn;
  SignInFigures m_figures;
  bool m_isMissing = false;
  QString m_trouble;
  int m_looksUntilReading = 0;
};
