#include <gtest/gtest.h>

#include "exchange/CsvReader.h"
#include "support/Thrown.h"

namespace {

/// Each record as `line-lastLine:field|field`, with `!` behind one that has stray text.
std::string taken(const QByteArray& bytes) {
  CsvReader reader(bytes);
  std::string text;
  while (!reader.atEnd()) {
    const CsvRecord record = reader.next();
    text += std::to_string(record.line) + '-' + std::to_string(record.lastLine) + ':';
    text += record.fields.join('|').toStdString();
    text += record.strayText ? "! " : " ";
  }
  return text;
}

}  // namespace

TEST(CsvReader, EndsLinesAtEachKindOfLineEnd) {
  EXPECT_EQ(taken("a,b\nc\r\nd\re"), "1-1:a|b 2-2:c 3-3:d 4-4:e ");
  EXPECT_EQ(taken("a\n\n,\n"), "1-1:a 2-2: 3-3:| ");
  EXPECT_EQ(taken(""), "");
}

TEST(CsvReader, KeepsWhatStandsBetweenQuotes) {
  EXPECT_EQ(taken("\"a,b\",\"c\"\"d\"\n\"\",x"), "1-1:a,b|c\"d 2-2:|x ");
  EXPECT_EQ(taken("\"a\r\nb\nc\",d\r\ne"), "1-3:a\r\nb\nc|d 4-4:e ");
  EXPECT_EQ(taken("a\"b,\"c\" \n\"d\"e"), "1-1:a\"b|c  2-2:de! ") << "a quote inside a field is a character";
}

TEST(CsvReader, RefusesAQuoteThatIsNeverClosed) {
  CsvReader reader("a\nb,\"c\nd\n");
  std::ignore = reader.next();
  EXPECT_EQ(support::thrown([&] { std::ignore = reader.next(); }).description(),
            QStringLiteral("第 2 行：引号没有结束"));
}

TEST(CsvReader, CountsMoreFieldsThanItKeeps) {
  const CsvRecord record = CsvReader(QByteArray(999, ',')).next();
  EXPECT_EQ(record.fieldCount, 1000);
  EXPECT_EQ(record.fields.size(), 64);
}
