#include "cli/BackupCommand.h"

#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>

#include "ado/Recordset.h"
#include "cli/Database.h"
#include "foundation/Schema.h"
#include "foundation/clsDbConn.h"
#include "runtime/Conversions.h"
#include "runtime/OutputGuard.h"
#include "runtime/ReplacingFile.h"
#include "runtime/RuntimeError.h"

namespace cli {

namespace {

[[noreturn]] void fail(const QString& description) {
  throw runtime::RuntimeError(runtime::ErrorNumber::FileIo, description);
}

void refuseTarget(const QString& path) {
  const QFileInfo target(path);
  if (target.exists() || target.isSymLink()) fail(QStringLiteral("文件“%1”已经存在，不会覆盖").arg(path));
  const QFileInfo directory(target.absolutePath());
  if (!directory.isDir()) fail(QStringLiteral("目录“%1”不存在").arg(directory.filePath()));
  if (runtime::isReadOnly(directory.filePath())) {
    fail(QStringLiteral("目录“%1”是只读的").arg(directory.filePath()));
  }
  // The copy is opened by a connection string, which cannot name such a file.
  const QString full = target.absoluteFilePath();
  if (full.contains(u'"') || full.contains(u'\\'))
    fail(QStringLiteral("路径“%1”含有双引号或反斜杠").arg(full));
}

std::shared_ptr<ado::Connection> openCopy(const QString& path) {
  auto connection = std::make_shared<ado::Connection>();
  connection->Open(
      QStringLiteral("PROVIDER=Microsoft.Jet.OLEDB.4.0;Data Source=\"%1\";Jet OLEDB:Database password=%2")
          .arg(QFileInfo(path).absoluteFilePath(), databasePassword()));
  return connection;
}

/// Tables, columns and indices as one text.
QString structureOf(const std::shared_ptr<ado::Connection>& connection) {
  ado::Recordset rows;
  rows.Open(QStringLiteral("SELECT name, sql FROM sqlite_master ORDER BY name"), connection);
  QString structure;
  for (; !rows.IsEOF(); rows.MoveNext()) {
    structure += runtime::toText(rows.Fields(0).Value()) + u' ' +
                 runtime::toTextOrEmpty(rows.Fields(1).Value()) + u'\n';
  }
  return structure;
}

/// Throws unless the copy at `path` is whole; gives the line that tells its rows.
QString verified(const QString& path, const QString& structure) {
  const auto copy = openCopy(path);
  const QStringList damage = copy->CheckPages();
  if (!damage.isEmpty()) fail(QStringLiteral("备份已损坏：%1").arg(damage.first()));
  if (structureOf(copy) != structure) fail(QStringLiteral("备份的结构与原数据库不同"));
  QStringList counts;
  for (const QString& table : requiredTables()) {
    counts.append(QStringLiteral("%1 %2 行")
                      .arg(table)
                      .arg(countOf(copy, QStringLiteral("SELECT COUNT(*) FROM ") + table)));
  }
  return counts.join(QStringLiteral("，"));
}

}  // namespace

QString BackupCommand::summary() const {
  return QStringLiteral("备份数据库（其他程序可以继续使用），并检查备份");
}

std::vector<Option> BackupCommand::options() {
  return {{.name = QStringLiteral("--out"),
           .valueName = QStringLiteral("FILE"),
           .help = QStringLiteral("备份文件，不能已经存在"),
           .target = &m_out,
           .required = true}};
}

int BackupCommand::run(const Streams& streams) {
  refuseTarget(m_out);
  runtime::requireFreeForOutput(m_out);
  const auto connection = openDatabase();
  // The name asked for never stands for a copy that was not tried.
  const QString unfinished = m_out + QStringLiteral(".unfinished");
  refuseTarget(unfinished);
  const auto removeUnfinished = qScopeGuard([&unfinished] { QFile::remove(unfinished); });
  connection->CopyTo(unfinished);
  const QString counts = verified(unfinished, structureOf(connection));
  if (!QFile::rename(unfinished, m_out)) fail(QStringLiteral("无法写入文件“%1”").arg(m_out));
  streams.out << QStringLiteral("备份完好：%1（%2）\n").arg(m_out, counts);
  return Done;
}

}  // namespace cli
