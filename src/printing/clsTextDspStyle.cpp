#include "printing/clsTextDspStyle.h"

#include "runtime/Conversions.h"
#include "runtime/RuntimeError.h"

namespace {

// Keys and truth values are stored.
namespace key {
const QString name = QStringLiteral("DSPNAME");
const QString font = QStringLiteral("DSPFONT");
const QString size = QStringLiteral("DSPSIZE");
const QString color = QStringLiteral("DSPCOLOR");
const QString bold = QStringLiteral("DSPBOLD");
const QString italic = QStringLiteral("DSPITALIC");
}  // namespace key

QString flag(bool set) {
  return set ? QStringLiteral("1") : QStringLiteral("0");
}

bool isSet(const QString& flag) {
  return flag == QStringLiteral("1");
}

}  // namespace

clsTextDspStyle::clsTextDspStyle() {
  m_configuration.setFileName(settingsFile());
}

void clsTextDspStyle::InitConfigGroupName(const QString& name) {
  const QString group = name.trimmed();
  if (!group.isEmpty()) m_configuration.setGroup(group);
}

bool clsTextDspStyle::SetItalic(bool italic) {
  return m_configuration.SetItem(key::italic, flag(italic));
}

bool clsTextDspStyle::GetItalic() const {
  return isSet(m_configuration.GetItem(key::italic));
}

bool clsTextDspStyle::SetBold(bool bold) {
  return m_configuration.SetItem(key::bold, flag(bold));
}

bool clsTextDspStyle::GetBold() const {
  return isSet(m_configuration.GetItem(key::bold));
}

bool clsTextDspStyle::SetColor(int color) {
  return m_configuration.SetItem(key::color, QString::number(color));
}

int clsTextDspStyle::GetColor() const {
  const QString stored = m_configuration.GetItem(key::color);
  if (!runtime::isNumeric(stored)) return 0;
  try {
    return runtime::toInt32(stored);
  } catch (const runtime::RuntimeError&) {
    // A number that is no colour counts as none.
    return 0;
  }
}

bool clsTextDspStyle::SetSize(const QString& size) {
  return m_configuration.SetItem(key::size, size.trimmed());
}

QString clsTextDspStyle::GetSize() const {
  const QString stored = m_configuration.GetItem(key::size);
  return runtime::isNumeric(stored) ? stored : QStringLiteral("14");
}

bool clsTextDspStyle::SetFont(const QString& name) {
  return m_configuration.SetItem(key::font, name.trimmed());
}

QString clsTextDspStyle::GetFont() const {
  return m_configuration.GetItem(key::font);
}

bool clsTextDspStyle::SetName(const QString& text) {
  return m_configuration.SetItem(key::name, text.trimmed());
}

QString clsTextDspStyle::GetName() const {
  return m_configuration.GetItem(key::name);
}
