#include "cli/ImportRosterCommand.h"

#include "cli/Database.h"
#include "exchange/RosterCsv.h"
#include "runtime/OutputGuard.h"
#include "runtime/ReplacingFile.h"

namespace cli {

namespace {

void listFaults(const RosterCheck& check, const Streams& streams) {
  for (const RosterLine& line : check.lines()) {
    if (!line.isRight()) streams.err << line.faultText() << '\n';
  }
}

}  // namespace

QString ImportRosterCommand::summary() const {
  return QStringLiteral("从 CSV 名单和照片文件夹批量导入员工");
}

std::vector<Option> ImportRosterCommand::options() {
  return {
      {.name = QStringLiteral("FILE"),
       .valueName = QStringLiteral("FILE.csv"),
       .help = QStringLiteral("名单：编号,姓名,部门,录入日期[,条码]，UTF-8 或 GBK；可以重复导入，"
                              "已有的员工会更新并保留条码"),
       .target = &m_file},
      {.name = QStringLiteral("--photos"),
       .valueName = QStringLiteral("DIR"),
       .help = QStringLiteral("照片文件夹，照片以编号命名（.jpg、.jpeg 或 .png）"),
       .target = &m_photos},
      {.name = QStringLiteral("--dry-run"), .help = QStringLiteral("只核对，不写入"), .target = &m_dryRun},
      {.name = QStringLiteral("--create-departments"),
       .help = QStringLiteral("新建名单中有而数据库中没有的部门"),
       .target = &m_options.createDepartments},
      {.name = QStringLiteral("--skip-bad"),
       .help = QStringLiteral("跳过有错的行；否则只要一行有错就不导入"),
       .target = &m_options.skipBad},
      {.name = QStringLiteral("--template"),
       .help = QStringLiteral("把空白名单写到 FILE，没有给出 FILE 时写到标准输出"),
       .target = &m_template}};
}

QString ImportRosterCommand::usageFault() const {
  if (m_template) {
    const bool imports = !m_photos.isEmpty() || m_dryRun || m_options.createDepartments || m_options.skipBad;
    return imports ? QStringLiteral("--template 不能与其他选项一起使用") : QString();
  }
  if (m_file.isEmpty()) return QStringLiteral("缺少 FILE");
  return m_photos.isEmpty() ? QStringLiteral("缺少 --photos") : QString();
}

int ImportRosterCommand::run(const Streams& streams) {
  if (m_template) return writeTemplate(streams);
  std::ignore = openDatabase();
  RosterCheck check(m_file, m_photos);
  std::ignore = check.checkPhotos();
  check.judge(m_options.createDepartments);
  listFaults(check, streams);

  const RosterCounts counts = check.counts();
  if (counts.wrong > 0 && !m_options.skipBad) {
    streams.err
        << QStringLiteral("共有 %1 行有错，没有导入任何员工（--skip-bad 跳过有错的行）\n").arg(counts.wrong);
    return Failed;
  }
  if (counts.right() == 0) {
    streams.err << QStringLiteral("没有可导入的员工\n");
    return Failed;
  }
  if (!m_dryRun) return import(check, streams);
  streams.out
      << QStringLiteral("核对完成，没有写入：可%1，跳过 %2 行\n").arg(counts.text()).arg(counts.wrong);
  return Done;
}

int ImportRosterCommand::writeTemplate(const Streams& streams) const {
  if (m_file.isEmpty()) {
    // Turning bytes into text drops the mark.
    streams.out << QChar(QChar::ByteOrderMark) << QString::fromUtf8(rosterTemplate());
    return Done;
  }
  runtime::requireFreeForOutput(m_file);
  runtime::replaceFile(m_file, rosterTemplate());
  streams.out << QStringLiteral("已写入空白名单：%1\n").arg(m_file);
  return Done;
}

int ImportRosterCommand::import(RosterCheck& check, const Streams& streams) const {
  RosterImport import(check);
  std::ignore = import.run(m_options);
  const RosterCounts& written = import.written();
  streams.out << QStringLiteral("已导入 %1 名员工：%2，跳过 %3 行\n")
                     .arg(written.right())
                     .arg(written.text())
                     .arg(written.wrong);
  return Done;
}

}  // namespace cli
