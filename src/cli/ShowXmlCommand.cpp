#include "cli/ShowXmlCommand.h"

#include "cli/RecordsetText.h"

namespace cli {

QString ShowXmlCommand::summary() const {
  return QStringLiteral("显示 XML 文件中的记录：先列出各列，再列出各行");
}

std::vector<Option> ShowXmlCommand::options() {
  return {{.name = QStringLiteral("FILE"),
           .valueName = QStringLiteral("FILE.xml"),
           .help = QStringLiteral("导出的文件，或其他程序按同一格式写的文件"),
           .target = &m_file,
           .required = true},
          {.name = QStringLiteral("--json"),
           .help = QStringLiteral("写成 JSON：一个含有 columns 和 rows 的对象"),
           .target = &m_json}};
}

int ShowXmlCommand::run(const Streams& streams) {
  persisted::Reader reader(m_file);
  if (m_json) {
    writeJson(reader, streams.out);
  } else {
    writeTable(reader, streams.out);
  }
  return Done;
}

}  // namespace cli
