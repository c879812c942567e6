#include "exchange/RosterCsv.h"

#include <algorithm>
#include <array>
#include <optional>

#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

#include "exchange/CsvReader.h"
#include "runtime/CodePage.h"
#include "runtime/RuntimeError.h"
#include "runtime/SystemWords.h"

namespace {

constexpr qint64 largestFile = 16 * 1024 * 1024;
constexpr std::size_t mostLines = 100'000;
constexpr QByteArrayView byteOrderMark("\xEF\xBB\xBF");

struct Column {
  QStringView name;
  /// What the list in the window calls it.
  QStringView listName;
  QString RosterRow::*value;
  bool required;
};

constexpr std::array columns = {Column{u"编号", u"员工号", &RosterRow::number, true},
                                Column{u"姓名", u"姓名", &RosterRow::name, true},
                                Column{u"部门", u"所属部门", &RosterRow::department, true},
                                Column{u"录入日期", u"录入日期", &RosterRow::date, true},
                                Column{u"条码", u"签到条码", &RosterRow::barcode, false}};

[[noreturn]] void refuse(const QString& why,
                         runtime::ErrorNumber number = runtime::ErrorNumber::InvalidCall) {
  throw runtime::RuntimeError(number, why);
}

QString headings() {
  QStringList names;
  for (const Column& column : columns) names.append(column.name.toString());
  return names.join(u',');
}

/// Refuses what people take for a CSV file.
void refuseOtherKinds(const QByteArray& bytes) {
  if (bytes.startsWith("PK\x03\x04") || bytes.startsWith("\xD0\xCF\x11\xE0")) {
    refuse(QStringLiteral("文件是 Excel 工作簿，请先另存为“CSV UTF-8”格式"));
  }
  if (bytes.startsWith("\xFF\xFE") || bytes.startsWith("\xFE\xFF") || bytes.contains('\0')) {
    refuse(QStringLiteral("文件的编码是 UTF-16 或不是文字，请另存为“CSV UTF-8”格式"));
  }
}

QByteArray contentOf(const QString& path) {
  if (!QFileInfo::exists(path)) {
    refuse(QStringLiteral("找不到名单文件“%1”").arg(path), runtime::ErrorNumber::FileNotFound);
  }
  QFile file(path);
  // A pipe would wait for its writer, a device never end.
  if (!QFileInfo(path).isFile()) {
    refuse(QStringLiteral("“%1”不是文件").arg(path), runtime::ErrorNumber::FileAccess);
  }
  if (!file.open(QIODevice::ReadOnly)) {
    refuse(QStringLiteral("名单文件“%1”无法打开：%2").arg(path, runtime::systemWords(file.errorString())),
           runtime::ErrorNumber::FileAccess);
  }
  if (file.size() > largestFile) refuse(QStringLiteral("名单文件“%1”超过 16 MB").arg(path));
  QByteArray bytes = file.readAll();
  if (file.error() != QFileDevice::NoError) {
    refuse(QStringLiteral("名单文件“%1”无法读取：%2").arg(path, runtime::systemWords(file.errorString())),
           runtime::ErrorNumber::FileIo);
  }
  refuseOtherKinds(bytes);
  return bytes;
}

std::optional<QString> fromUtf8(const QByteArray& bytes) {
  QStringDecoder decode(QStringDecoder::Utf8, QStringConverter::Flag::Stateless);
  QString text = decode(bytes);
  if (decode.hasError()) return std::nullopt;
  return text;
}

std::optional<QString> fromGbk(const QByteArray& bytes) {
  QString text = runtime::fromCodePage(bytes);
  // What is no character comes back differently, or not at all.
  if (runtime::toCodePage(text) != bytes) return std::nullopt;
  return text;
}

using Decoder = std::optional<QString> (*)(const QByteArray& bytes);

const Column* columnOf(const QString& heading) {
  const auto* found = std::find_if(columns.begin(), columns.end(), [&heading](const Column& column) {
    return heading == column.name || heading == column.listName;
  });
  return found == columns.end() ? nullptr : found;
}

/// Takes the records of one file apart after its heading has told how.
class RosterFile {
 public:
  explicit RosterFile(const QByteArray& bytes) : m_records(bytes) {}

  std::vector<RosterRow> rows(bool marked) {
    takeHeading(marked);
    std::vector<RosterRow> rows;
    while (!m_records.atEnd()) {
      const CsvRecord record = m_records.next();
      if (isBlank(record)) continue;
      if (rows.size() == mostLines) refuse(QStringLiteral("名单超过 %1 行").arg(mostLines));
      rows.push_back(rowOf(record));
    }
    return rows;
  }

 private:
  static bool isBlank(const CsvRecord& record) {
    return std::all_of(record.fields.begin(), record.fields.end(),
                       [](const QByteArray& field) { return field.trimmed().isEmpty(); });
  }

  void takeHeading(bool marked) {
    while (!m_records.atEnd()) {
      const CsvRecord record = m_records.next();
      if (isBlank(record)) continue;
      m_place = QStringLiteral("第 %1 行（标题行）：").arg(record.line);
      // The headings are Chinese: they tell which of the two encodings it is.
      const bool utf8 = marked || std::all_of(record.fields.begin(), record.fields.end(),
                                              [](const auto& field) { return fromUtf8(field).has_value(); });
      m_decode = utf8 ? fromUtf8 : fromGbk;
      for (const QByteArray& field : record.fields) takeHeading(field);
      requireColumns();
      return;
    }
    refuse(QStringLiteral("名单文件是空的，第一行应为：%1").arg(headings()));
  }

  void takeHeading(const QByteArray& field) {
    const std::optional<QString> text = m_decode(field);
    if (!text) refuse(m_place + QStringLiteral("文字编码有误，应为 UTF-8 或 GBK"));
    const QString heading = text->trimmed();
    const Column* column = columnOf(heading);
    if (column && std::find(m_columns.begin(), m_columns.end(), column) != m_columns.end()) {
      refuse(m_place + QStringLiteral("“%1”列出现了两次").arg(heading));
    }
    if (!column && !heading.isEmpty()) m_unknown.append(heading);
    m_columns.push_back(column);
  }

  void requireColumns() const {
    for (const Column& column : columns) {
      if (!column.required) continue;
      if (std::find(m_columns.begin(), m_columns.end(), &column) != m_columns.end()) continue;
      refuse(m_place + QStringLiteral("缺少“%1”列；应为：%2，以英文逗号分隔").arg(column.name, headings()));
    }
    // A misspelt 条码 must not pass for a roster without barcodes.
    if (!m_unknown.isEmpty()) {
      refuse(m_place + QStringLiteral("不认识的列“%1”，请删除这一列；应为：%2")
                           .arg(m_unknown.join(QStringLiteral("”、“")), headings()));
    }
  }

  RosterRow rowOf(const CsvRecord& record) const {
    RosterRow row{.line = record.line, .lastLine = record.lastLine};
    const qsizetype expected = static_cast<qsizetype>(m_columns.size());
    for (qsizetype i = 0; i < std::min(expected, record.fields.size()); ++i) {
      const std::optional<QString> text = m_decode(record.fields[i]);
      if (!text) row.fault = QStringLiteral("文字编码有误，应与标题行相同");
      const Column* column = m_columns[static_cast<std::size_t>(i)];
      if (column) {
        row.*(column->value) = text.value_or(QString()).trimmed();
      } else if (text && !text->trimmed().isEmpty()) {
        row.fault = QStringLiteral("第 %1 列没有标题").arg(i + 1);
      }
    }
    if (record.strayText) row.fault = QStringLiteral("引号后面有多余的文字");
    if (record.fieldCount != expected) {
      row.fault = QStringLiteral("应有 %1 列，实有 %2 列").arg(expected).arg(record.fieldCount);
    }
    return row;
  }

  CsvReader m_records;
  QString m_place;
  Decoder m_decode = fromUtf8;
  /// What each column of the file holds; null for one without a heading.
  std::vector<const Column*> m_columns;
  QStringList m_unknown;
};

}  // namespace

QString RosterRow::place() const {
  return lastLine > line ? QStringLiteral("第 %1–%2 行").arg(line).arg(lastLine)
                         : QStringLiteral("第 %1 行").arg(line);
}

std::vector<RosterRow> readRoster(const QString& path) {
  QByteArray bytes = contentOf(path);
  const bool marked = bytes.startsWith(byteOrderMark);
  if (marked) bytes.remove(0, byteOrderMark.size());
  return RosterFile(bytes).rows(marked);
}

QByteArray rosterTemplate() {
  return byteOrderMark.toByteArray() + headings().toUtf8() + "\r\n";
}
