#include "dialogs/Dialogs.h"

#include <cstdio>
#include <utility>

namespace dialogs {

namespace {

Host* installed = nullptr;

/// Where nobody can be asked, nothing is agreed to.
Answer withoutHost(const MessageBox& box) {
  const QString line = box.title.isEmpty() ? box.text : box.title + QStringLiteral("：") + box.text;
  std::fprintf(stderr, "%s\n", line.toUtf8().constData());
  return (box.style & YesNo) != 0 ? Answer::No : Answer::Ok;
}

}  // namespace

Host* installHost(Host* host) {
  return std::exchange(installed, host);
}

Answer MsgBox(const QString& text, int style, const QString& title) {
  const MessageBox box{text, style, title};
  return installed ? installed->message(box) : withoutHost(box);
}

std::optional<QString> InputBoxText(const InputBox& box) {
  return installed ? installed->input(box) : std::nullopt;
}

QStringList chooseFile(const FileBox& box) {
  return installed ? installed->file(box) : QStringList();
}

std::optional<QString> chooseFolder(const FolderBox& box) {
  return installed ? installed->folder(box) : std::nullopt;
}

std::optional<FontBox> chooseFont(const FontBox& box) {
  return installed ? installed->font(box) : std::nullopt;
}

std::optional<ColorBox> chooseColor(const ColorBox& box) {
  return installed ? installed->color(box) : std::nullopt;
}

void showUnhandled(const QString& description) {
  MsgBox(description, Critical | OkOnly, QStringLiteral("错误"));
}

}  // namespace dialogs
