#include "exchange/RosterJudge.h"

#include <algorithm>
#include <limits>

#include "runtime/Clock.h"
#include "runtime/Conversions.h"
#include "runtime/ProgramDirectory.h"

namespace {

/// Characters of a text column.
constexpr qsizetype longestText = 50;
constexpr qsizetype barcodeDigits = 15;

bool isUnseen(QChar c) {
  return c.category() == QChar::Other_Control || c.category() == QChar::Other_Format;
}

void judgeText(RosterLine& line, const QString& value, const QString& what) {
  if (value.isEmpty()) line.faults.append(what + QStringLiteral("为空"));
  if (value.size() > longestText) {
    line.faults.append(QStringLiteral("%1超过 %2 个字").arg(what).arg(longestText));
  }
  if (std::any_of(value.begin(), value.end(), isUnseen)) {
    line.faults.append(what + QStringLiteral("中有换行等看不见的字符"));
  }
}

/// The single quote ends a text in the statements that look for it.
void refuseQuote(RosterLine& line, const QString& value, const QString& what) {
  if (value.contains(u'\'')) line.faults.append(what + QStringLiteral("中不能有单引号"));
}

bool isBarcode(const QString& text) {
  return text.size() == barcodeDigits &&
         std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

QString badBarcode(const QString& barcode) {
  QString fault = QStringLiteral("条码“%1”不是 15 位数字").arg(barcode);
  if (!barcode.contains(u'E', Qt::CaseInsensitive)) return fault;
  return fault + QStringLiteral("（表格软件会改写长数字，请先把这一列设为文本格式）");
}

}  // namespace

RosterJudge::RosterJudge(const std::vector<RosterRow>& rows, bool createDepartments)
    : m_createDepartments(createDepartments), m_today(runtime::now().date().startOfDay()) {
  for (const RosterRow& row : rows) {
    note(m_numbers, row.number, row);
    note(m_barcodes, row.barcode, row);
  }
}

void RosterJudge::note(Places& places, const QString& value, const RosterRow& row) {
  if (value.isEmpty()) return;
  auto& rows = places[value];
  if (rows.size() < 2) rows.push_back(&row);
}

void RosterJudge::refuseRepeated(RosterLine& line, const Places& places, const QString& value,
                                 const QString& what) {
  const auto found = places.find(value);
  if (found == places.end() || found->second.size() < 2) return;
  const auto& rows = found->second;
  const RosterRow& other = rows[0]->line == line.row.line ? *rows[1] : *rows[0];
  line.faults.append(QStringLiteral("%1与%2相同").arg(what, other.place()));
}

RosterLine RosterJudge::judge(const RosterRow& row, const RosterPhotos::Found& photo) const {
  RosterLine line{.row = row};
  if (!row.fault.isEmpty()) {
    line.faults.append(row.fault);
    return line;
  }
  const auto& stored = m_records.employees(row.number);
  const RosterRecords::Employee* employee = stored.empty() ? nullptr : &stored.front();
  line.isUpdate = employee != nullptr;
  if (stored.size() > 1) line.faults.append(QStringLiteral("数据库中有不止一名员工使用这个编号"));
  if (employee && employee->name != row.name) line.nameBefore = employee->name;
  judgeNumber(line);
  judgeText(line, row.name, QStringLiteral("姓名"));
  judgeDepartment(line);
  judgeDate(line, employee);
  judgeBarcode(line, employee);
  line.photo = photo.path;
  if (!photo.fault.isEmpty() && !row.number.isEmpty()) line.faults.append(photo.fault);
  return line;
}

void RosterJudge::judgeNumber(RosterLine& line) const {
  const QString& number = line.row.number;
  const QString what = QStringLiteral("编号");
  judgeText(line, number, what);
  refuseQuote(line, number, what);
  if (!number.isEmpty() && !runtime::isPlainFileName(number)) {
    line.faults.append(QStringLiteral("编号不能用作照片的文件名"));
  }
  refuseRepeated(line, m_numbers, number, what);
}

void RosterJudge::judgeDepartment(RosterLine& line) const {
  const QString& name = line.row.department;
  const std::optional<qint64> id = m_records.department(name);
  if (id && !name.isEmpty()) {
    if (*id < 1 || *id > std::numeric_limits<std::int16_t>::max()) {
      line.faults.append(QStringLiteral("部门“%1”的部门号 %2 超出范围").arg(name).arg(*id));
    } else {
      line.department = static_cast<std::int16_t>(*id);
    }
    return;
  }
  const qsizetype before = line.faults.size();
  judgeText(line, name, QStringLiteral("部门"));
  refuseQuote(line, name, QStringLiteral("部门"));
  if (line.faults.size() == before && !m_createDepartments) {
    line.faults.append(QStringLiteral("没有部门“%1”").arg(name));
  }
}

void RosterJudge::judgeDate(RosterLine& line, const RosterRecords::Employee* stored) const {
  const QString& text = line.row.date;
  if (text.isEmpty()) {
    line.entered = stored ? stored->entered.value_or(m_today) : m_today;
    return;
  }
  const std::optional<QDateTime> date = runtime::parseDateTime(text);
  if (date) {
    line.entered = *date;
  } else {
    line.faults.append(QStringLiteral("录入日期“%1”不是有效的日期（应如 2026-11-15）").arg(text));
  }
}

void RosterJudge::judgeBarcode(RosterLine& line, const RosterRecords::Employee* stored) const {
  const QString& given = line.row.barcode;
  const QString kept = stored ? stored->barcode : QString();
  line.barcode = given.isEmpty() ? kept : given;
  if (given.isEmpty() || given == kept) return;
  if (!kept.isEmpty()) {
    line.faults.append(QStringLiteral("条码“%1”与该员工已有的“%2”不同，已打印的卡会失效；不填则保留已有的")
                           .arg(given, kept));
    return;
  }
  if (!isBarcode(given)) {
    line.faults.append(badBarcode(given));
    return;
  }
  if (const auto holder = m_records.otherHolder(given, line.row.number)) {
    line.faults.append(QStringLiteral("条码“%1”已由员工“%2”使用").arg(given, *holder));
  }
  refuseRepeated(line, m_barcodes, given, QStringLiteral("条码"));
}
