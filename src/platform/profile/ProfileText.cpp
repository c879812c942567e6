#include "profile/ProfileText.h"

namespace profile {

namespace {

bool isBlank(char c) {
  return c == ' ' || c == '\t' || c == '\v';
}

QByteArrayView trimmed(QByteArrayView text) {
  while (!text.isEmpty() && isBlank(text.front())) text = text.sliced(1);
  while (!text.isEmpty() && isBlank(text.back())) text.chop(1);
  return text;
}

/// Bytes of the character that begins at `at`. Second bytes of GBK reach down to 0x40, into letters, brackets
/// and the backslash.
qsizetype characterSize(QByteArrayView text, qsizetype at) {
  const auto first = static_cast<unsigned char>(text[at]);
  if (first < 0x81 || first == 0xff || at + 1 >= text.size()) return 1;
  const auto second = static_cast<unsigned char>(text[at + 1]);
  return second >= 0x40 && second != 0x7f && second != 0xff ? 2 : 1;
}

qsizetype indexOfCharacter(QByteArrayView text, char wanted) {
  for (qsizetype at = 0; at < text.size(); at += characterSize(text, at)) {
    if (text[at] == wanted) return at;
  }
  return -1;
}

char lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool isSameName(QByteArrayView a, QByteArrayView b) {
  if (a.size() != b.size()) return false;
  for (qsizetype at = 0; at < a.size();) {
    const qsizetype size = characterSize(a, at);
    const bool same = size == 2 ? a.sliced(at, 2) == b.sliced(at, 2) : lower(a[at]) == lower(b[at]);
    if (!same) return false;
    at += size;
  }
  return true;
}

std::optional<QByteArrayView> sectionName(QByteArrayView line) {
  const QByteArrayView text = trimmed(line);
  if (!text.startsWith('[')) return std::nullopt;
  const qsizetype end = indexOfCharacter(text, ']');
  if (end < 0) return std::nullopt;
  return trimmed(text.sliced(1, end - 1));
}

bool breaksLine(QByteArrayView text) {
  return text.contains('\r') || text.contains('\n') || text.contains('\0');
}

bool isSectionName(QByteArrayView name) {
  return !breaksLine(name) && indexOfCharacter(name, ']') < 0;
}

bool isKeyName(QByteArrayView name) {
  return !breaksLine(name) && !name.contains('=') && !name.startsWith(';') && !sectionName(name);
}

}  // namespace

ProfileText::Line ProfileText::lineAt(qsizetype begin) const {
  const qsizetype newline = m_bytes.indexOf('\n', begin);
  Line line{begin, newline < 0 ? m_bytes.size() : newline, newline < 0 ? m_bytes.size() : newline + 1};
  if (line.end > begin && m_bytes[line.end - 1] == '\r') --line.end;
  return line;
}

QByteArrayView ProfileText::content(const Line& line) const {
  return QByteArrayView(m_bytes).sliced(line.begin, line.end - line.begin);
}

std::optional<ProfileText::Section> ProfileText::findSection(QByteArrayView name) const {
  for (qsizetype at = 0; at < m_bytes.size();) {
    const Line line = lineAt(at);
    const std::optional<QByteArrayView> found = sectionName(content(line));
    if (found && isSameName(*found, name)) return Section{line.next, endOfSection(line.next)};
    at = line.next;
  }
  return std::nullopt;
}

qsizetype ProfileText::endOfSection(qsizetype begin) const {
  qsizetype at = begin;
  while (at < m_bytes.size()) {
    const Line line = lineAt(at);
    if (sectionName(content(line))) break;
    at = line.next;
  }
  return at;
}

std::optional<ProfileText::Line> ProfileText::findValue(const Section& section, QByteArrayView key) const {
  for (qsizetype at = section.begin; at < section.end;) {
    const Line line = lineAt(at);
    const QByteArrayView text = content(line);
    const qsizetype equals = text.indexOf('=');
    if (equals >= 0 && !text.startsWith(';') && isSameName(trimmed(text.first(equals)), key)) {
      return Line{line.begin + equals + 1, line.end, line.next};
    }
    at = line.next;
  }
  return std::nullopt;
}

std::optional<QByteArray> ProfileText::value(QByteArrayView section, QByteArrayView key) const {
  const std::optional<Section> place = findSection(trimmed(section));
  if (!place) return std::nullopt;
  const std::optional<Line> found = findValue(*place, trimmed(key));
  if (!found) return std::nullopt;
  QByteArrayView text = content(*found);
  const qsizetype nul = text.indexOf('\0');
  if (nul >= 0) text = text.first(nul);
  return trimmed(text).toByteArray();
}

bool ProfileText::setValue(QByteArrayView section, QByteArrayView key, QByteArrayView value) {
  const QByteArrayView sectionText = trimmed(section);
  const QByteArrayView keyText = trimmed(key);
  if (!isSectionName(sectionText) || !isKeyName(keyText) || breaksLine(value)) return false;

  const QByteArray entry = keyText.toByteArray() + '=' + value.toByteArray() + "\r\n";
  const std::optional<Section> place = findSection(sectionText);
  if (!place) {
    insertLines(m_bytes.size(), '[' + sectionText.toByteArray() + "]\r\n" + entry);
  } else if (const std::optional<Line> found = findValue(*place, keyText)) {
    m_bytes.replace(found->begin, found->end - found->begin, value.toByteArray());
  } else {
    insertLines(behindLastEntry(*place), entry);
  }
  return true;
}

void ProfileText::insertLines(qsizetype at, const QByteArray& lines) {
  const bool lineIsOpen = at > 0 && m_bytes[at - 1] != '\n';
  m_bytes.insert(at, lineIsOpen ? "\r\n" + lines : lines);
}

/// The empty lines before the next section's header keep the two apart.
qsizetype ProfileText::behindLastEntry(const Section& section) const {
  qsizetype behind = section.begin;
  for (qsizetype at = section.begin; at < section.end;) {
    const Line line = lineAt(at);
    if (!trimmed(content(line)).isEmpty()) behind = line.next;
    at = line.next;
  }
  return behind;
}

}  // namespace profile
