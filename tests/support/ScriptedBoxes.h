#pragma once

#include <deque>
#include <variant>
#include <vector>

#include "dialogs/Dialogs.h"

namespace support {

/// A host of boxes that is a queue of expected boxes with their answers. A box that was not expected fails
/// the test at once and is answered No or cancelled, so nothing hangs; an answer that is left over fails the
/// test too.
class ScriptedBoxes : public dialogs::Host {
 public:
  ScriptedBoxes();
  ~ScriptedBoxes() override;

  /// Expects a message box whose text contains `text` and answers it.
  void expectMessage(const QString& text, dialogs::Answer answer = dialogs::Answer::Ok);
  /// Expects an input box and gives `answer`; nothing for cancel.
  void expectInput(const std::optional<QString>& answer);
  /// Expects a file box and gives `answer`; empty for cancel.
  void expectFile(const QStringList& answer);
  /// Expects a folder box and gives `answer`; nothing for cancel.
  void expectFolder(const std::optional<QString>& answer);
  void expectFont(const std::optional<dialogs::FontBox>& answer);
  void expectColor(const std::optional<dialogs::ColorBox>& answer);

  /// Everything that was shown, in order.
  [[nodiscard]] const std::vector<dialogs::MessageBox>& messages() const { return m_messages; }
  [[nodiscard]] const std::vector<dialogs::FileBox>& files() const { return m_files; }
  [[nodiscard]] const std::vector<dialogs::InputBox>& inputs() const { return m_inputs; }

  dialogs::Answer message(const dialogs::MessageBox& box) override;
  std::optional<QString> input(const dialogs::InputBox& box) override;
  QStringList file(const dialogs::FileBox& box) override;
  std::optional<QString> folder(const dialogs::FolderBox& box) override;
  std::optional<dialogs::FontBox> font(const dialogs::FontBox& box) override;
  std::optional<dialogs::ColorBox> color(const dialogs::ColorBox& box) override;

 private:
  struct ExpectedMessage {
    QString text;
    dialogs::Answer answer;
  };
  struct ExpectedInput {
    std::optional<QString> answer;
  };
  struct ExpectedFile {
    QStringList answer;
  };
  struct ExpectedFolder {
    std::optional<QString> answer;
  };
  struct ExpectedFont {
    std::optional<dialogs::FontBox> answer;
  };
  struct ExpectedColor {
    std::optional<dialogs::ColorBox> answer;
  };
  using Expected =
      std::variant<ExpectedMessage, ExpectedInput, ExpectedFile, ExpectedFolder, ExpectedFont, ExpectedColor>;

  /// Takes the next expectation when it is of the wanted kind; else fails the test naming the box.
  template <typename Kind>
  std::optional<Kind> take(const QString& shown);

  std::deque<Expected> m_expected;
  std::vector<dialogs::MessageBox> m_messages;
  std::vector<dialogs::FileBox> m_files;
  std::vector<dialogs::InputBox> m_inputs;
  dialogs::Host* m_before;
};

}  // namespace support
