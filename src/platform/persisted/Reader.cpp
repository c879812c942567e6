#include "persisted/Reader.h"

#include <cerrno>
#include <optional>
#include <sys/stat.h>
#include <utility>

#include <QFile>

#include "persisted/DataSection.h"
#include "persisted/Format.h"
#include "persisted/Refusal.h"
#include "persisted/SchemaSection.h"
#include "persisted/XmlParser.h"
#include "runtime/RuntimeError.h"
#include "runtime/SystemWords.h"

namespace persisted {

namespace {

using runtime::ErrorNumber;
using runtime::RuntimeError;

[[noreturn]] void cannotRead(ErrorNumber number, const QString& path, const QString& why) {
  throw RuntimeError(number, QStringLiteral("无法读取文件“%1”：%2").arg(path, why));
}

/// Reading from a pipe would wait for whoever writes into it.
void requireFile(const QString& path) {
  struct stat facts {};
  if (::stat(QFile::encodeName(path).constData(), &facts) == 0 && !S_ISREG(facts.st_mode)) {
    cannotRead(ErrorNumber::FileAccess, path, QStringLiteral("不是普通文件"));
  }
}

/// What `work` finds wrong with the content gets the file's name and what to do about it.
template <typename Work>
auto naming(const QString& path, Work&& work) -> decltype(work()) {
  try {
    return work();
  } catch (const RuntimeError& error) {
    if (error.number() != invalidFormat) throw;
    throw error.reworded(QStringLiteral("文件“%1”不能读取：%2。请重新导出这个文件，或换一个文件")
                             .arg(path, error.description()));
  }
}

}  // namespace

/// The file, its parser, and the section that the parser is in.
class Reader::Parsing : public XmlHandler {
 public:
  explicit Parsing(const QString& path) : m_file(path), m_parser(*this) {
    requireFile(path);
    errno = 0;
    if (m_file.open(QIODevice::ReadOnly)) return;
    const QString why = errno == 0 ? runtime::systemWords(m_file.errorString()) : runtime::systemWords(errno);
    cannotRead(ErrorNumber::FileAccess, path, why);
  }

  [[nodiscard]] QString path() const { return m_file.fileName(); }

  void readSchema() {
    while (!m_data && readPiece()) continue;
    if (!m_data) refuse(QStringLiteral("其中没有记录集的数据，不是记录集的 XML 文件"));
  }

  void startElement(QByteArrayView space, QByteArrayView name, const XmlAttributes& attributes) override {
    ++m_depth;
    if (m_inData) return m_data->startElement(space, name, attributes);
    if (m_inSchema) return m_schema.startElement(space, name, attributes);
    if (space == schemaSpace && name == "Schema") {
      startSchema(attributes);
    } else if (space == rowsetSpace && name == "data") {
      startData();
    }
  }

  void endElement() override {
    if (m_depth == m_sectionAt) {
      m_inSchema = false;
      m_inData = false;
      m_sectionAt = 0;
    } else if (m_inData) {
      m_data->endElement();
    } else if (m_inSchema) {
      m_schema.endElement();
    }
    --m_depth;
  }

  [[nodiscard]] const SchemaSection& schema() const { return m_schema; }

  [[nodiscard]] bool next(std::vector<QVariant>& values) {
    while (m_data->rows().empty()) {
      if (!readPiece()) return false;
    }
    values = std::move(m_data->rows().front());
    m_data->rows().pop_front();
    return true;
  }

 private:
  /// False when the whole file has been read.
  bool readPiece() {
    if (m_atEnd) return false;
    const qsizetype wanted = m_parser.wanted();
    const qint64 read = m_file.read(m_parser.room(wanted), wanted);
    if (read < 0) {
      cannotRead(ErrorNumber::FileIo, path(), runtime::systemWords(m_file.errorString()));
    }
    m_atEnd = read == 0;
    m_parser.parse(read, m_atEnd);
    return true;
  }

  void startSchema(const XmlAttributes& attributes) {
    if (m_data || !m_schema.rowName().isEmpty()) refuse(QStringLiteral("其中有两个记录集"));
    m_rowSpace = "#" + attributes.value({}, "id").toByteArray();
    m_inSchema = true;
    m_sectionAt = m_depth;
  }

  void startData() {
    if (m_data) refuse(QStringLiteral("其中有两个记录集"));
    m_schema.resolve();
    m_data.emplace(m_schema, m_rowSpace);
    m_inData = true;
    m_sectionAt = m_depth;
  }

  QFile m_file;
  XmlParser m_parser;
  bool m_atEnd = false;
  int m_depth = 0;
  /// The depth of the section's element.
  int m_sectionAt = 0;
  bool m_inSchema = false;
  bool m_inData = false;
  QByteArray m_rowSpace;
  SchemaSection m_schema;
  std::optional<DataSection> m_data;
};

Reader::Reader(const QString& path) : m_parsing(std::make_unique<Parsing>(path)) {
  naming(path, [this] { m_parsing->readSchema(); });
}

Reader::~Reader() = default;

const std::vector<FieldDefinition>& Reader::columns() const {
  return m_parsing->schema().columns();
}

bool Reader::next(std::vector<QVariant>& values) {
  return naming(m_parsing->path(), [&] { return m_parsing->next(values); });
}

}  // namespace persisted
