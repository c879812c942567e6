#pragma once

#include <chrono>
#include <optional>

#include <QString>
#include <QStringList>

/// Makes codes of the keys that a barcode scanner types. A scan ends with Enter or with a pause; cards
/// scanned so quickly that neither stands between them are told apart by their length.
///
/// Times are those of the keys themselves, from any beginning: a window that was kept busy sees them late.
class ScanSplitter {
 public:
  using Time = std::chrono::milliseconds;

  /// A key that comes so long after the one before begins a new scan.
  static constexpr Time pause{60};

  /// Whether a key at `time` may belong to the scan of a key at `before`.
  [[nodiscard]] static bool isSameScan(Time before, Time time);

  /// The codes that the keys so far were, if this one begins a new scan; empty otherwise.
  [[nodiscard]] QStringList character(QChar character, Time time);
  /// The codes that Enter ended.
  [[nodiscard]] QStringList enter();
  /// The codes that end because nothing more came.
  [[nodiscard]] QStringList finish();
  /// A deaf splitter forgets what it holds and what comes, and a scan that began meanwhile to its end.
  void setDeaf(bool deaf);

 private:
  [[nodiscard]] QStringList take();

  QString m_text;
  std::optional<Time> m_last;
  bool m_deaf = false;
  bool m_dropping = false;
};

/// Whether `code` can stand on a card: 15 decimal digits.
[[nodiscard]] bool isCardCode(const QString& code);
