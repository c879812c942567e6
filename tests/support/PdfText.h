#pragma once

#include <gtest/gtest.h>

#include <QProcess>
#include <QRegularExpression>
#include <QStringList>

namespace support {

/// What a tool of poppler-utils says about the PDF at `path`.
inline QString poppler(const QString& tool, const QStringList& options, const QString& path) {
  QProcess process;
  process.start(tool, options + QStringList{path, QStringLiteral("-")});
  EXPECT_TRUE(process.waitForFinished()) << tool.toStdString() << " is not installed";
  EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
  return QString::fromUtf8(process.readAllStandardOutput());
}

/// The text of every page of the PDF at `path`, in order.
inline QStringList textOfPages(const QString& path) {
  QStringList pages = poppler(QStringLiteral("pdftotext"), {}, path).split(QLatin1Char('\f'));
  pages.removeLast();
  for (QString& page : pages) page = page.trimmed();
  return pages;
}

/// What stands on the first page of a PDF, in points.
struct FirstPage {
  QSizeF paper;
  /// Of the first word.
  QSizeF word;
};

inline FirstPage firstPageOf(const QString& path) {
  const QString text = poppler(QStringLiteral("pdftotext"), {QStringLiteral("-bbox")}, path);
  static const QRegularExpression page(QStringLiteral("<page width=\"([\\d.]+)\" height=\"([\\d.]+)\""));
  static const QRegularExpression word(QStringLiteral(
      "<word xMin=\"([-\\d.]+)\" yMin=\"([-\\d.]+)\" xMax=\"([-\\d.]+)\" yMax=\"([-\\d.]+)\""));
  const auto paper = page.match(text);
  const auto box = word.match(text);
  const auto number = [](const QRegularExpressionMatch& match, int index) {
    return match.captured(index).toDouble();
  };
  return {{number(paper, 1), number(paper, 2)},
          {number(box, 3) - number(box, 1), number(box, 4) - number(box, 2)}};
}

}  // namespace support
