#include "ado/ConnectionString.h"

#include <QHash>

#include "ado/AdoError.h"

namespace ado {

namespace {

/// Where the value that begins at `begin` ends: at a semicolon outside of its quotes.
qsizetype endOfValue(const QString& text, qsizetype begin) {
  while (begin < text.size() && text.at(begin) == u' ') ++begin;
  const QChar first = begin < text.size() ? text.at(begin) : QChar();
  const bool quoted = first == u'"' || first == u'\'';
  const qsizetype closing = quoted ? text.indexOf(first, begin + 1) : -1;
  const qsizetype from = closing < 0 ? begin : closing;
  const qsizetype end = text.indexOf(u';', from);
  return end < 0 ? text.size() : end;
}

QString unquoted(const QString& value) {
  const bool quoted =
      value.size() >= 2 && value.front() == value.back() && (value.front() == u'"' || value.front() == u'\'');
  return quoted ? value.mid(1, value.size() - 2) : value;
}

QHash<QString, QString> pairs(const QString& text) {
  QHash<QString, QString> found;
  qsizetype at = 0;
  while (at < text.size()) {
    const qsizetype equals = text.indexOf(u'=', at);
    if (equals < 0) break;
    const qsizetype end = endOfValue(text, equals + 1);
    found.insert(text.mid(at, equals - at).trimmed().toLower(),
                 unquoted(text.mid(equals + 1, end - equals - 1).trimmed()));
    at = end + 1;
  }
  return found;
}

}  // namespace

ConnectionString parseConnectionString(const QString& text) {
  const QHash<QString, QString> values = pairs(text);
  const QString provider = values.value(QStringLiteral("provider"));
  if (provider.compare(QLatin1String("Microsoft.Jet.OLEDB.4.0"), Qt::CaseInsensitive) != 0) {
    throw AdoError(AdoErrorNumber::OperationNotAllowed,
                   QStringLiteral("未找到数据库提供程序“%1”").arg(provider));
  }
  ConnectionString result{values.value(QStringLiteral("data source")),
                          values.value(QStringLiteral("jet oledb:database password"))};
  if (result.dataSource.isEmpty()) {
    throw AdoError(AdoErrorNumber::OperationNotAllowed, QStringLiteral("连接字符串没有指明数据库文件"));
  }
  return result;
}

}  // namespace ado
