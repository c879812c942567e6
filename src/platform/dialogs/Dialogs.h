#pragma once

#include <optional>

#include <QString>
#include <QStringList>

/// The one seam for every box that asks or tells the user something. Callers use the free functions; they
/// forward to the installed host: the Qt host in the programs, a scripted one in tests.
namespace dialogs {

/// Styles of a message box: the icon plus the buttons, as numbers that can be combined.
enum MessageStyle : int {
  OkOnly = 0,
  YesNo = 4,
  Critical = 16,
  Question = 32,
  Exclamation = 48,
  Information = 64,
};

enum class Answer { Ok = 1, Cancel = 2, Yes = 6, No = 7 };

struct MessageBox {
  QString text;
  int style = OkOnly;
  QString title;
};

struct InputBox {
  QString prompt;
  QString title;
  QString defaultText;
};

/// Flags of the file dialogs that the program uses.
enum FileFlag : int {
  FileMustExist = 0x1000,
  AllowMultiSelect = 0x200,
  Explorer = 0x80000,
};

struct FileBox {
  bool save = false;
  QString title;
  /// Pairs of a text and its patterns, all separated by `|`: "XML文件|*.xml".
  QString filter;
  /// The name proposed.
  QString fileName;
  int flags = 0;
};

/// Asks for a folder that is there.
struct FolderBox {
  QString title;
  /// The folder shown first; empty for the one that the desktop shows.
  QString folder;
};

struct FontBox {
  QString name;
  /// Points.
  double size = 0;
  bool bold = false;
  bool italic = false;
};

struct ColorBox {
  /// A stored colour: red in the low byte, then green, then blue.
  int color = 0;
};

/// Shows the boxes. A cancelled box gives nothing.
class Host {
 public:
  Host() = default;
  Host(const Host&) = delete;
  Host& operator=(const Host&) = delete;
  virtual ~Host() = default;

  virtual Answer message(const MessageBox& box) = 0;
  virtual std::optional<QString> input(const InputBox& box) = 0;
  /// The files chosen, full paths in the dialog's order; empty when cancelled.
  virtual QStringList file(const FileBox& box) = 0;
  /// The full path of the folder.
  virtual std::optional<QString> folder(const FolderBox& box) = 0;
  virtual std::optional<FontBox> font(const FontBox& box) = 0;
  virtual std::optional<ColorBox> color(const ColorBox& box) = 0;
};

/// Installs the host and returns the one before; the caller keeps ownership. Without a host (null) a message
/// goes to standard error and every question is answered No, every other box is cancelled.
Host* installHost(Host* host);

Answer MsgBox(const QString& text, int style, const QString& title);
[[nodiscard]] std::optional<QString> InputBoxText(const InputBox& box);
[[nodiscard]] QStringList chooseFile(const FileBox& box);
[[nodiscard]] std::optional<QString> chooseFolder(const FolderBox& box);
[[nodiscard]] std::optional<FontBox> chooseFont(const FontBox& box);
[[nodiscard]] std::optional<ColorBox> chooseColor(const ColorBox& box);

/// Tells of an error that no handler caught: one critical box that names what failed.
void showUnhandled(const QString& description);

}  // namespace dialogs
