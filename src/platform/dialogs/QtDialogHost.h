#pragma once

#include "dialogs/Dialogs.h"

namespace dialogs {

/// Shows the boxes as windows of Qt, modal over the active window.
class QtDialogHost : public Host {
 public:
  Answer message(const MessageBox& box) override;
  std::optional<QString> input(const InputBox& box) override;
  QStringList file(const FileBox& box) override;
  std::optional<QString> folder(const FolderBox& box) override;
  std::optional<FontBox> font(const FontBox& box) override;
  std::optional<ColorBox> color(const ColorBox& box) override;
};

/// A filter of FileBox as the filters of a Qt file dialog: "XML文件|*.xml" gives "XML文件 (*.xml)".
[[nodiscard]] QStringList qtNameFilters(const QString& filter);

}  // namespace dialogs
