#include "station/ScanSplitter.h"

#include <algorithm>
#include <utility>

namespace {

constexpr qsizetype cardDigits = 15;
constexpr qsizetype mostCards = 3;
/// No scanner reads more; something that lies on the keyboard types for hours.
constexpr qsizetype longest = 200;

bool isDigits(const QString& text) {
  return std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

bool isWholeCards(const QString& text) {
  return text.size() % cardDigits == 0 && text.size() / cardDigits <= mostCards && isDigits(text);
}

QStringList codesIn(const QString& text) {
  if (!isWholeCards(text)) return {text};
  QStringList codes;
  for (qsizetype at = 0; at < text.size(); at += cardDigits) codes.append(text.mid(at, cardDigits));
  return codes;
}

}  // namespace

QStringList ScanSplitter::character(QChar character, Time time) {
  const bool goesOn = followsOn(time);
  QStringList codes = goesOn ? QStringList() : take();
  m_dropping = m_deaf || (m_dropping && goesOn);
  m_last = time;
  if (!m_dropping && m_text.size() < longest) m_text.append(character);
  return codes;
}

QStringList ScanSplitter::enter() {
  return finish();
}

QStringList ScanSplitter::finish() {
  m_dropping = false;
  m_last.reset();
  return take();
}

void ScanSplitter::setDeaf(bool deaf) {
  m_deaf = deaf;
  if (deaf) m_text.clear();
}

ScanSplitter::Time ScanSplitter::pauseNow() const {
  return isWholeCards(m_text) ? pause : longPause;
}

bool ScanSplitter::followsOn(Time time) const {
  // The system's count of milliseconds starts again at 0 after seven weeks.
  return m_last && time >= *m_last && time - *m_last < pauseNow();
}

QStringList ScanSplitter::take() {
  return m_text.isEmpty() ? QStringList() : codesIn(std::exchange(m_text, {}));
}

bool isCardCode(const QString& code) {
  return code.size() == cardDigits && isDigits(code);
}
