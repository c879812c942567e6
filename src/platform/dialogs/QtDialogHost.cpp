#include "dialogs/QtDialogHost.h"

#include <algorithm>

#include <QApplication>
#include <QColorDialog>
#include <QDir>
#include <QFileDialog>
#include <QFontDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>

namespace dialogs {

namespace {

// Points. The font window computes with sizes far beyond that until they overflow.
constexpr double largestSize = 2000;
constexpr int inputWidth = 400;

QMessageBox::Icon iconOf(int style) {
  switch (style & (Critical | Question | Information)) {
    case Critical:
      return QMessageBox::Critical;
    case Question:
      return QMessageBox::Question;
    case Exclamation:
      return QMessageBox::Warning;
    case Information:
      return QMessageBox::Information;
    default:
      return QMessageBox::NoIcon;
  }
}

void addAnswers(QMessageBox& window, bool question) {
  if (!question) {
    window.addButton(QMessageBox::Ok)->setText(QStringLiteral("确定"));
    return;
  }
  window.addButton(QMessageBox::Yes)->setText(QStringLiteral("是(&Y)"));
  window.addButton(QMessageBox::No)->setText(QStringLiteral("否(&N)"));
  window.setDefaultButton(QMessageBox::Yes);
  window.setEscapeButton(QMessageBox::No);
}

QString firstSuffix(const QString& filter) {
  const QString pattern = filter.section(u'|', 1, 1).section(u';', 0, 0);
  return pattern.startsWith(QStringLiteral("*.")) && !pattern.endsWith(u'*') ? pattern.mid(2) : QString();
}

QFileDialog::FileMode fileMode(const FileBox& box) {
  if (box.save) return QFileDialog::AnyFile;
  return (box.flags & AllowMultiSelect) != 0 ? QFileDialog::ExistingFiles : QFileDialog::ExistingFile;
}

}  // namespace

QStringList qtNameFilters(const QString& filter) {
  QStringList filters;
  const QStringList parts = filter.split(u'|');
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    QString patterns = parts[i + 1];
    patterns.replace(u';', u' ');
    // A text that already lists its patterns would show them twice.
    const QString text = parts[i].section(u'(', 0, 0).trimmed();
    filters.append(text + QStringLiteral(" (") + patterns + QStringLiteral(")"));
  }
  return filters;
}

Answer QtDialogHost::message(const MessageBox& box) {
  const bool question = (box.style & YesNo) != 0;
  QMessageBox window(QApplication::activeWindow());
  window.setIcon(iconOf(box.style));
  window.setWindowTitle(box.title);
  window.setTextFormat(Qt::PlainText);
  QString text = box.text;
  window.setText(text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
  addAnswers(window, question);
  const int pressed = window.exec();
  if (!question) return Answer::Ok;
  return pressed == QMessageBox::Yes ? Answer::Yes : Answer::No;
}

std::optional<QString> QtDialogHost::input(const InputBox& box) {
  QInputDialog window(QApplication::activeWindow());
  window.setWindowTitle(box.title);
  window.setLabelText(box.prompt);
  window.setTextValue(box.defaultText);
  window.setOkButtonText(QStringLiteral("确定"));
  window.setCancelButtonText(QStringLiteral("取消"));
  window.resize(window.sizeHint().expandedTo({inputWidth, 0}));
  if (window.exec() != QDialog::Accepted) return std::nullopt;
  return window.textValue();
}

QStringList QtDialogHost::file(const FileBox& box) {
  QFileDialog window(QApplication::activeWindow(), box.title);
  window.setAcceptMode(box.save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  window.setFileMode(fileMode(box));
  window.setNameFilters(qtNameFilters(box.filter));
  if (box.save) window.setDefaultSuffix(firstSuffix(box.filter));
  if (!box.fileName.isEmpty()) window.selectFile(box.fileName);
  if (window.exec() != QDialog::Accepted) return {};
  return window.selectedFiles();
}

std::optional<QString> QtDialogHost::folder(const FolderBox& box) {
  QFileDialog window(QApplication::activeWindow(), box.title);
  window.setFileMode(QFileDialog::Directory);
  window.setOption(QFileDialog::ShowDirsOnly);
  if (!box.folder.isEmpty()) window.setDirectory(box.folder);
  if (window.exec() != QDialog::Accepted) return std::nullopt;
  return window.selectedFiles().value(0);
}

std::optional<FontBox> QtDialogHost::font(const FontBox& box) {
  QFont font(box.name);
  if (box.size > 0) font.setPointSizeF(std::min(box.size, largestSize));
  font.setBold(box.bold);
  font.setItalic(box.italic);
  QFontDialog window(font, QApplication::activeWindow());
  // The window rounds half points, and proposes another family and style where the system lacks those: what
  // the user leaves alone stays.
  const QFont proposed = window.currentFont();
  if (window.exec() != QDialog::Accepted) return std::nullopt;
  const QFont chosen = window.selectedFont();
  if (chosen == proposed) return box;
  FontBox result{chosen.family(), chosen.pointSizeF(), chosen.bold(), chosen.italic()};
  if (chosen.pointSizeF() == proposed.pointSizeF()) result.size = box.size;
  if (chosen.family() == proposed.family()) {
    result.name = box.name;
    if (chosen.bold() == proposed.bold()) result.bold = box.bold;
    if (chosen.italic() == proposed.italic()) result.italic = box.italic;
  }
  return result;
}

std::optional<ColorBox> QtDialogHost::color(const ColorBox& box) {
  const QColor before(box.color & 0xff, box.color >> 8 & 0xff, box.color >> 16 & 0xff);
  QColorDialog window(before, QApplication::activeWindow());
  if (window.exec() != QDialog::Accepted) return std::nullopt;
  const QColor chosen = window.selectedColor();
  return ColorBox{chosen.red() | chosen.green() << 8 | chosen.blue() << 16};
}

}  // namespace dialogs
