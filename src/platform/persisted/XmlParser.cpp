#include "persisted/XmlParser.h"

#include <algorithm>
#include <cstring>
#include <exception>
#include <expat.h>
#include <new>

#include "persisted/Refusal.h"
#include "persisted/XmlErrorText.h"

namespace persisted {

namespace {

constexpr char separator = '\x1f';
constexpr qsizetype firstPiece = 1 << 16;
/// A value that is just short enough, and the tag around it.
constexpr qsizetype longestToken = XmlParser::longestValue + (qsizetype{16} << 20);

/// Splits what the parser gives as namespace, separator, name.
std::pair<QByteArrayView, QByteArrayView> split(const char* name) {
  const char* mark = std::strchr(name, separator);
  if (mark == nullptr) return {QByteArrayView(), QByteArrayView(name)};
  return {QByteArrayView(name, mark - name), QByteArrayView(mark + 1)};
}

}  // namespace

XmlAttribute XmlAttributes::attribute(const char* const* pair) {
  const auto [space, name] = split(pair[0]);
  return {space, name, QByteArrayView(pair[1])};
}

QByteArrayView XmlAttributes::value(QByteArrayView space, QByteArrayView name) const {
  QByteArrayView found;
  each([&](const XmlAttribute& attribute) {
    if (attribute.space == space && attribute.name == name) found = attribute.value;
  });
  return found;
}

/// The parser with what it calls back. No exception may pass through its C code: the first one is kept.
class XmlParser::Events {
 public:
  explicit Events(XmlHandler& handler)
      : m_handler(handler), m_parser(XML_ParserCreateNS(nullptr, separator)) {
    if (m_parser == nullptr) throw std::bad_alloc();
    XML_SetUserData(m_parser, this);
    XML_SetElementHandler(m_parser, start, end);
    XML_SetStartDoctypeDeclHandler(m_parser, doctype);
  }
  Events(const Events&) = delete;
  Events& operator=(const Events&) = delete;
  ~Events() { XML_ParserFree(m_parser); }

  [[nodiscard]] qsizetype wanted() const { return std::max(firstPiece, m_pending); }

  [[nodiscard]] char* room(qsizetype size) {
    void* buffer = XML_GetBuffer(m_parser, static_cast<int>(size));
    if (buffer == nullptr) refuse(QStringLiteral("内存不足"));
    return static_cast<char*>(buffer);
  }

  void parse(qsizetype size, bool last) {
    m_heard = false;
    const XML_Status status = XML_ParseBuffer(m_parser, static_cast<int>(size), last ? XML_TRUE : XML_FALSE);
    if (m_failure) std::rethrow_exception(m_failure);
    if (status != XML_STATUS_OK) refuse(words());
    m_pending = m_heard ? 0 : m_pending + size;
    if (m_pending > longestToken) refuseLongValue();
  }

 private:
  template <typename Work>
  static void guarded(void* data, Work&& work) {
    auto& events = *static_cast<Events*>(data);
    events.m_heard = true;
    if (events.m_failure) return;
    try {
      work(events);
    } catch (...) {
      events.m_failure = std::current_exception();
      XML_StopParser(events.m_parser, XML_FALSE);
    }
  }

  static void start(void* data, const char* name, const char** attributes) {
    guarded(data, [&](Events& events) { events.startElement(name, attributes); });
  }
  static void end(void* data, const char*) {
    guarded(data, [](Events& events) {
      --events.m_depth;
      events.m_handler.endElement();
    });
  }
  static void doctype(void* data, const char*, const char*, const char*, int) {
    guarded(data, [](Events&) { refuse(QStringLiteral("其中有文档类型定义（DOCTYPE）")); });
  }

  void startElement(const char* name, const char** attributes) {
    if (++m_depth > deepest) refuse(QStringLiteral("元素嵌套超过 %1 层").arg(deepest));
    int count = 0;
    for (const char** pair = attributes; *pair != nullptr; pair += 2) {
      if (++count > mostAttributes) refuse(QStringLiteral("一个元素的属性超过 %1 个").arg(mostAttributes));
      if (static_cast<qsizetype>(std::strlen(pair[1])) > longestValue) refuseLongValue();
    }
    const auto [space, local] = split(name);
    m_handler.startElement(space, local, XmlAttributes(attributes));
  }

  [[noreturn]] static void refuseLongValue() {
    refuse(QStringLiteral("其中有一个值超过 %1 MB").arg(longestValue >> 20));
  }

  /// Why the document is not well-formed, and where.
  [[nodiscard]] QString words() const {
    const XML_Error code = XML_GetErrorCode(m_parser);
    const bool isControl = code == XML_ERROR_INVALID_TOKEN && standsAtControlCharacter();
    return (isControl ? QStringLiteral("其中有 XML 不允许的控制字符") : xmlErrorText(code)) +
           QStringLiteral("（文件的第 %1 行第 %2 列）")
               .arg(XML_GetCurrentLineNumber(m_parser))
               .arg(XML_GetCurrentColumnNumber(m_parser) + 1);
  }

  [[nodiscard]] bool standsAtControlCharacter() const {
    int offset = 0;
    int size = 0;
    const char* context = XML_GetInputContext(m_parser, &offset, &size);
    if (context == nullptr || offset >= size) return false;
    const auto c = static_cast<unsigned char>(context[offset]);
    return c < 0x20 && c != '\t' && c != '\r' && c != '\n';
  }

  XmlHandler& m_handler;
  XML_Parser m_parser;
  int m_depth = 0;
  bool m_heard = false;
  /// Bytes since the last element was told.
  qsizetype m_pending = 0;
  std::exception_ptr m_failure;
};

XmlParser::XmlParser(XmlHandler& handler) : m_events(std::make_unique<Events>(handler)) {}

XmlParser::~XmlParser() = default;

qsizetype XmlParser::wanted() const {
  return m_events->wanted();
}

char* XmlParser::room(qsizetype size) {
  return m_events->room(size);
}

void XmlParser::parse(qsizetype size, bool last) {
  m_events->parse(size, last);
}

}  // namespace persisted
