#include "persisted/XmlErrorText.h"

#include <algorithm>
#include <array>
#include <expat.h>

namespace persisted {

namespace {

struct Words {
  XML_Error code;
  QStringView text;
};

constexpr std::array known = {
    Words{XML_ERROR_NO_MEMORY, u"内存不足"},
    Words{XML_ERROR_SYNTAX, u"这里不应出现文字"},
    Words{XML_ERROR_NO_ELEMENTS, u"没有内容，或者不是 XML 文件"},
    Words{XML_ERROR_INVALID_TOKEN, u"有不合 XML 规则或不合文件编码的字符"},
    Words{XML_ERROR_UNCLOSED_TOKEN, u"文件不完整"},
    Words{XML_ERROR_PARTIAL_CHAR, u"文件不完整"},
    Words{XML_ERROR_TAG_MISMATCH, u"开始标记和结束标记不成对"},
    Words{XML_ERROR_DUPLICATE_ATTRIBUTE, u"一个元素的同一个属性写了两次"},
    Words{XML_ERROR_JUNK_AFTER_DOC_ELEMENT, u"文件的结尾之后还有多余的内容"},
    Words{XML_ERROR_UNDEFINED_ENTITY, u"引用了没有定义的实体"},
    Words{XML_ERROR_BAD_CHAR_REF, u"字符引用不正确"},
    Words{XML_ERROR_MISPLACED_XML_PI, u"XML 声明不在文件的开头"},
    Words{XML_ERROR_UNKNOWN_ENCODING, u"不认识文件所用的编码"},
    Words{XML_ERROR_INCORRECT_ENCODING, u"文件的编码与它的声明不符"},
    Words{XML_ERROR_UNCLOSED_CDATA_SECTION, u"文件不完整"},
    Words{XML_ERROR_UNBOUND_PREFIX, u"使用了没有声明的命名空间前缀"},
    Words{XML_ERROR_UNDECLARING_PREFIX, u"命名空间的声明不正确"},
    Words{XML_ERROR_XML_DECL, u"XML 声明不正确"},
    Words{XML_ERROR_TEXT_DECL, u"XML 声明不正确"},
    Words{XML_ERROR_RESERVED_PREFIX_XML, u"命名空间的声明不正确"},
    Words{XML_ERROR_RESERVED_PREFIX_XMLNS, u"命名空间的声明不正确"},
    Words{XML_ERROR_RESERVED_NAMESPACE_URI, u"命名空间的声明不正确"},
};

}  // namespace

QString xmlErrorText(int code) {
  const auto found =
      std::find_if(known.begin(), known.end(), [code](const Words& words) { return words.code == code; });
  if (found != known.end()) return found->text.toString();
  return QStringLiteral("不是正确的 XML（错误 %1）").arg(code);
}

}  // namespace persisted
