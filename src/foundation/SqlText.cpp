#include "foundation/SqlText.h"

#include <algorithm>

#include "runtime/DefaultText.h"
#include "runtime/RuntimeError.h"

namespace sql {

namespace {

bool isDigit(QChar c) {
  return c >= u'0' && c <= u'9';
}

bool isDecimal(const QString& text) {
  const qsizetype sign = text.startsWith(u'-') || text.startsWith(u'+') ? 1 : 0;
  return text.size() > sign && std::all_of(text.begin() + sign, text.end(), isDigit);
}

}  // namespace

QString quoted(const QString& text) {
  if (text.contains(u'\'') || text.contains(QChar(u'\0'))) {
    throw runtime::RuntimeError(runtime::ErrorNumber::InvalidCall,
                                QStringLiteral("文字中不能有单引号：%1").arg(text));
  }
  return u'\'' + text + u'\'';
}

QString number(std::int64_t value) {
  return QString::number(value);
}

QString number(const QString& text) {
  if (!isDecimal(text)) {
    throw runtime::RuntimeError(runtime::ErrorNumber::TypeMismatch, QStringLiteral("不是数字：%1").arg(text));
  }
  return text;
}

QString date(const QDate& day) {
  return u'#' + runtime::dateText(day) + u'#';
}

}  // namespace sql
