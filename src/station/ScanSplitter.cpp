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

QStringList codesIn(const QString& text) {
  const bool isSeveral = text.size() % cardDigits == 0 && text.size() / cardDigits <= mostCards;
  if (!isSeveral || !isDigits(text)) return {text};
  QStringList codes;
  for (qsizetype at = 0; at < text.size(); at += cardDigits) codes.append(text.mid(at, cardDigits));
  return codes;
}

}  // namespace

QStringList ScanSplitter::character(QChar character, Time time) {
  const bool goesOn = m_last && isSameScan(*m_last, time);
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

bool ScanSplitter::isSameScan(Time before, Time time) {
  // The system's count of milliseconds starts again at 0 after seven weeks.
  return time >= before && time - before < pause;
}

QStringList ScanSplitter::take() {
  return m_text.isEmpty() ? QStringList() : codesIn(std::exchange(m_text, {}));
}

bool isCardCode(const QString& code) {
  return code.size() == cardDigits && isDigits(code);
}
