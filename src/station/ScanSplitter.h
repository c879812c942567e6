#pragma once

#include <chrono>
#include <optional>

#include <QString>
#include <QStringList>

/// Makes codes of the keys that a barcode scanner types. A scan ends with Enter or with a pause, which is
/// longer while a card is not whole, since a machine with much to do hands the keys on by fits and starts.
/// Cards scanned so quickly that neither stands between them are told apart by their length.
///
/// Times are those of the keys themselves, from any beginning: a window that was kept busy sees them late.
class ScanSplitter {
 public:
  using Time = std::chrono::milliseconds;

  /// A key that comes so long after whole cards begins a new scan.
  static constexpr Time pause{60};
  /// As long is waited for the rest of what is no whole card yet.
  static constexpr Time longPause{250};

  /// The codes that the keys so far were, if this one begins a new scan; empty otherwise.
  [[nodiscard]] QStringList character(QChar character, Time time);
  /// The codes that Enter ended.
  [[nodiscard]] QStringList enter();
  /// The codes that end because nothing came for pauseNow().
  [[nodiscard]] QStringList finish();
  /// How long after its last key what it holds ends.
  [[nodiscard]] Time pauseNow() const;
  /// A deaf splitter forgets what it holds and what comes, and a scan that began meanwhile to its end.
  void setDeaf(bool deaf);

 private:
  [[nodiscard]] bool followsOn(Time time) const;
  [[nodiscard]] QStringList take();

  QString m_text;
  std::optional<Time> m_last;
  bool m_deaf = false;
  bool m_dropping = false;
};

/// Whether `code` can stand on a card: 15 decimal digits.
[[nodiscard]] bool isCardCode(const QString& code);
