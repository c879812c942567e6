#include "store/SqlTokens.h"

#include "store/StoreError.h"

namespace store {

namespace {

[[noreturn]] void refuse(const QString& why) {
  throw StoreError(runtime::FailureKind::Other, QStringLiteral("SQL 语句无效：%1").arg(why));
}

bool isWordStart(QChar c) {
  return c.isLetter() || c == u'_' || c.isSurrogate() || (c.unicode() >= 0x80 && !c.isSpace());
}

bool isWordPart(QChar c) {
  return isWordStart(c) || (c >= u'0' && c <= u'9');
}

bool isDigit(QChar c) {
  return c >= u'0' && c <= u'9';
}

bool isBlank(QChar c) {
  return c == u' ' || c == u'\t' || c == u'\n' || c == u'\r' || c == u'\f';
}

class Scanner {
 public:
  explicit Scanner(const QString& sql) : m_sql(sql) {}

  std::vector<Token> all() {
    std::vector<Token> found;
    for (skipBlanks(); !atEnd(); skipBlanks()) {
      if (current() == u';') {
        requireNothingBehind();
        break;
      }
      found.push_back(next());
    }
    return found;
  }

 private:
  [[nodiscard]] bool atEnd() const { return m_at >= m_sql.size(); }
  [[nodiscard]] QChar current() const { return m_sql.at(m_at); }
  [[nodiscard]] QChar following() const { return m_at + 1 < m_sql.size() ? m_sql.at(m_at + 1) : QChar(); }

  void skipBlanks() {
    while (!atEnd() && isBlank(current())) ++m_at;
  }

  void requireNothingBehind() {
    ++m_at;
    skipBlanks();
    if (!atEnd()) refuse(QStringLiteral("分号之后还有内容"));
  }

  Token next() {
    const QChar c = current();
    if (c == u'\'') return quoted(u'\'', TokenKind::String);
    if (c == u'"' || c == u'`') return quoted(c, TokenKind::QuotedName);
    if (c == u'[') return until(u']', TokenKind::QuotedName, QStringLiteral("方括号没有结束"));
    if (c == u'#') return date();
    if (isWordStart(c)) return run(TokenKind::Word, isWordPart);
    if (isDigit(c))
      return run(TokenKind::Number, [](QChar part) { return isWordPart(part) || part == u'.'; });
    refuseSymbol(c);
    return token(TokenKind::Symbol, m_at++);
  }

  void refuseSymbol(QChar c) const {
    if ((c == u'-' && following() == u'-') || (c == u'/' && following() == u'*')) {
      refuse(QStringLiteral("不允许使用注释"));
    }
    if (c == u'?' || c == u':' || c == u'@' || c == u'$') refuse(QStringLiteral("不允许使用参数"));
  }

  [[nodiscard]] Token token(TokenKind kind, qsizetype begin) const {
    const qsizetype end = std::max(m_at, begin + 1);
    return {kind, QStringView(m_sql).mid(begin, end - begin), begin};
  }

  Token quoted(QChar mark, TokenKind kind) {
    const qsizetype begin = m_at++;
    while (true) {
      const qsizetype end = m_sql.indexOf(mark, m_at);
      if (end < 0) refuse(QStringLiteral("引号没有结束"));
      m_at = end + 1;
      if (atEnd() || current() != mark) return token(kind, begin);
      ++m_at;
    }
  }

  Token until(QChar mark, TokenKind kind, const QString& complaint) {
    const qsizetype begin = m_at;
    const qsizetype end = m_sql.indexOf(mark, m_at + 1);
    if (end < 0) refuse(complaint);
    m_at = end + 1;
    return token(kind, begin);
  }

  Token date() {
    Token found = until(u'#', TokenKind::Date, QStringLiteral("日期没有以 # 结束"));
    found.text = found.text.mid(1, found.text.size() - 2);
    return found;
  }

  template <typename Part>
  Token run(TokenKind kind, Part isPart) {
    const qsizetype begin = m_at;
    while (!atEnd() && isPart(current())) ++m_at;
    return token(kind, begin);
  }

  const QString& m_sql;
  qsizetype m_at = 0;
};

}  // namespace

std::vector<Token> tokens(const QString& sql) {
  if (sql.contains(QChar(u'\0'))) refuse(QStringLiteral("含有空字符"));
  return Scanner(sql).all();
}

bool names(const Token& token, const QString& name) {
  if (token.kind == TokenKind::Word) return token.text.compare(name, Qt::CaseInsensitive) == 0;
  if (token.kind != TokenKind::QuotedName) return false;
  return token.text.mid(1, token.text.size() - 2).compare(name, Qt::CaseInsensitive) == 0;
}

}  // namespace store
