#pragma once

#include <QString>

#include "foundation/clsConfiguration.h"

/// Text and font of one free line of the card, kept in the settings; the line is chosen by its group.
class clsTextDspStyle {
 public:
  clsTextDspStyle();

  /// Chooses the line: "UNIT" or "MEMO". A blank name changes nothing.
  void InitConfigGroupName(const QString& name);

  [[nodiscard]] bool SetItalic(bool italic);
  [[nodiscard]] bool GetItalic() const;
  [[nodiscard]] bool SetBold(bool bold);
  [[nodiscard]] bool GetBold() const;
  /// A stored colour; 0 when the stored text is no number.
  [[nodiscard]] bool SetColor(int color);
  [[nodiscard]] int GetColor() const;
  /// Points as text; "14" when the stored text is no number.
  [[nodiscard]] bool SetSize(const QString& size);
  [[nodiscard]] QString GetSize() const;
  [[nodiscard]] bool SetFont(const QString& name);
  [[nodiscard]] QString GetFont() const;
  [[nodiscard]] bool SetName(const QString& text);
  [[nodiscard]] QString GetName() const;

 private:
  clsConfiguration m_configuration;
};
