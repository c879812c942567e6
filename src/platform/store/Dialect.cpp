#include "store/Dialect.h"

#include <optional>

#include <QDateTime>
#include <QStringList>

#include "runtime/Conversions.h"
#include "runtime/DefaultText.h"
#include "store/SqlTokens.h"
#include "store/StoreError.h"

namespace store {

namespace {

[[noreturn]] void refuse(const QString& why) {
  throw StoreError(runtime::FailureKind::Other, QStringLiteral("SQL 语句无效：%1").arg(why));
}

const QStringList& openingWords(StatementUse use) {
  static const QStringList query{QStringLiteral("SELECT"), QStringLiteral("EXPLAIN")};
  static const QStringList change{QStringLiteral("INSERT"), QStringLiteral("UPDATE"),
                                  QStringLiteral("DELETE"), QStringLiteral("CREATE"),
                                  QStringLiteral("ALTER"),  QStringLiteral("DROP")};
  return use == StatementUse::Query ? query : change;
}

void requireUse(const std::vector<Token>& pieces, StatementUse use) {
  if (pieces.empty()) refuse(QStringLiteral("语句是空的"));
  const Token& first = pieces.front();
  if (first.kind != TokenKind::Word ||
      !openingWords(use).contains(first.text.toString(), Qt::CaseInsensitive)) {
    refuse(QStringLiteral("此处不能执行“%1”").arg(first.text));
  }
}

QString storedDate(QStringView literal) {
  const std::optional<QDateTime> moment = runtime::parseDateTime(literal.toString());
  if (!moment) refuse(QStringLiteral("“#%1#”不是有效的日期").arg(literal));
  return u'\'' + runtime::dateTimeText(*moment) + u'\'';
}

}  // namespace

QString translated(const QString& sql, StatementUse use) {
  const std::vector<Token> pieces = tokens(sql);
  requireUse(pieces, use);
  QString result;
  result.reserve(sql.size() + 8);
  qsizetype copied = 0;
  for (const Token& piece : pieces) {
    const bool date = piece.kind == TokenKind::Date;
    const qsizetype end = piece.position + piece.text.size() + (date ? 2 : 0);
    result += QStringView(sql).mid(copied, piece.position - copied);
    result += date ? storedDate(piece.text) : piece.text.toString();
    copied = end;
  }
  return result;
}

int mentions(const QString& sql, const QString& table) {
  const std::vector<Token> pieces = tokens(sql);
  int count = 0;
  for (std::size_t i = 0; i < pieces.size(); ++i) {
    const bool qualifier = i + 1 < pieces.size() && pieces[i + 1].text == QLatin1String(".");
    if (names(pieces[i], table) && !qualifier) ++count;
  }
  return count;
}

QString quotedName(const QString& name) {
  return u'"' + QString(name).replace(u'"', QStringLiteral("\"\"")) + u'"';
}

}  // namespace store
