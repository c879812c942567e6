#include "support/ScriptedBoxes.h"

#include <gtest/gtest.h>

namespace support {

ScriptedBoxes::ScriptedBoxes() : m_before(dialogs::installHost(this)) {}

ScriptedBoxes::~ScriptedBoxes() {
  dialogs::installHost(m_before);
  EXPECT_TRUE(m_expected.empty()) << m_expected.size() << " expected boxes were never shown";
}

void ScriptedBoxes::expectMessage(const QString& text, dialogs::Answer answer) {
  m_expected.emplace_back(ExpectedMessage{text, answer});
}

void ScriptedBoxes::expectInput(const std::optional<QString>& answer) {
  m_expected.emplace_back(ExpectedInput{answer});
}

void ScriptedBoxes::expectFile(const QStringList& answer) {
  m_expected.emplace_back(ExpectedFile{answer});
}

void ScriptedBoxes::expectFolder(const std::optional<QString>& answer) {
  m_expected.emplace_back(ExpectedFolder{answer});
}

void ScriptedBoxes::expectFont(const std::optional<dialogs::FontBox>& answer) {
  m_expected.emplace_back(ExpectedFont{answer});
}

void ScriptedBoxes::expectColor(const std::optional<dialogs::ColorBox>& answer) {
  m_expected.emplace_back(ExpectedColor{answer});
}

template <typename Kind>
std::optional<Kind> ScriptedBoxes::take(const QString& shown) {
  if (m_expected.empty() || !std::holds_alternative<Kind>(m_expected.front())) {
    ADD_FAILURE() << "a box that was not expected: " << shown.toStdString();
    return std::nullopt;
  }
  Kind expected = std::get<Kind>(m_expected.front());
  m_expected.pop_front();
  return expected;
}

dialogs::Answer ScriptedBoxes::message(const dialogs::MessageBox& box) {
  m_messages.push_back(box);
  const dialogs::Answer refusal =
      (box.style & dialogs::YesNo) != 0 ? dialogs::Answer::No : dialogs::Answer::Ok;
  const auto expected = take<ExpectedMessage>(box.title + QStringLiteral(": ") + box.text);
  if (!expected) return refusal;
  EXPECT_TRUE(box.text.contains(expected->text))
      << "shown: " << box.text.toStdString() << "\nexpected: " << expected->text.toStdString();
  return expected->answer;
}

std::optional<QString> ScriptedBoxes::input(const dialogs::InputBox& box) {
  m_inputs.push_back(box);
  const auto expected = take<ExpectedInput>(box.prompt);
  return expected ? expected->answer : std::nullopt;
}

QStringList ScriptedBoxes::file(const dialogs::FileBox& box) {
  m_files.push_back(box);
  const auto expected = take<ExpectedFile>(QStringLiteral("file box ") + box.filter);
  return expected ? expected->answer : QStringList();
}

std::optional<QString> ScriptedBoxes::folder(const dialogs::FolderBox& box) {
  const auto expected = take<ExpectedFolder>(QStringLiteral("folder box ") + box.title);
  return expected ? expected->answer : std::nullopt;
}

std::optional<dialogs::FontBox> ScriptedBoxes::font(const dialogs::FontBox& box) {
  const auto expected = take<ExpectedFont>(QStringLiteral("font box ") + box.name);
  return expected ? expected->answer : std::nullopt;
}

std::optional<dialogs::ColorBox> ScriptedBoxes::color(const dialogs::ColorBox& box) {
  const auto expected = take<ExpectedColor>(QStringLiteral("colour box ") + QString::number(box.color));
  return expected ? expected->answer : std::nullopt;
}

}  // namespace support
