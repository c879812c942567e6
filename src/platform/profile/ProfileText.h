#pragma once

#include <optional>

#include <QByteArray>
#include <QByteArrayView>

namespace profile {

/// The content of a profile file, taken apart only as far as a question asks. Every byte that no call changes
/// stays. Names compare without regard to the case of ASCII letters; the second byte of a two-byte character
/// is never taken for a letter, a bracket or a backslash.
class ProfileText {
 public:
  explicit ProfileText(QByteArray bytes) : m_bytes(std::move(bytes)) {}

  /// The value without the blanks around it, ended by a NUL; nothing when section or key are missing. Of
  /// sections and keys that occur twice the first counts.
  [[nodiscard]] std::optional<QByteArray> value(QByteArrayView section, QByteArrayView key) const;

  /// Puts `value` behind the key's `=`; a missing key is added at the end of its section, a missing section
  /// at the end of the text. Returns false, and changes nothing, when a name or the value could not be read
  /// back from one line.
  [[nodiscard]] bool setValue(QByteArrayView section, QByteArrayView key, QByteArrayView value);

  [[nodiscard]] const QByteArray& bytes() const { return m_bytes; }

 private:
  /// A line: its content, without the bytes that end it, and where the next line begins.
  struct Line {
    qsizetype begin = 0;
    qsizetype end = 0;
    qsizetype next = 0;
  };
  /// The lines of a section without its header.
  struct Section {
    qsizetype begin = 0;
    qsizetype end = 0;
  };

  [[nodiscard]] Line lineAt(qsizetype begin) const;
  [[nodiscard]] QByteArrayView content(const Line& line) const;
  [[nodiscard]] std::optional<Section> findSection(QByteArrayView name) const;
  [[nodiscard]] qsizetype endOfSection(qsizetype begin) const;
  /// The bytes behind the key's `=` up to the end of its line.
  [[nodiscard]] std::optional<Line> findValue(const Section& section, QByteArrayView key) const;
  void insertLines(qsizetype at, const QByteArray& lines);
  [[nodiscard]] qsizetype behindLastEntry(const Section& section) const;

  QByteArray m_bytes;
};

}  // namespace profile
