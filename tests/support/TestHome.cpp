#include "support/TestHome.h"

#include <gtest/gtest.h>

#include "ado/Recordset.h"
#include "foundation/GlobalDefine.h"
#include "foundation/Schema.h"
#include "foundation/clsConfiguration.h"
#include "foundation/clsDbConn.h"
#include "runtime/Conversions.h"
#include "runtime/ProgramDirectory.h"

namespace support {

TestHome::TestHome() {
  runtime::setAppPath(path());
  gConnection.reset();
  gMainForm.reset();
  clsConfiguration settings;
  settings.setFileName(settingsFile());
  settings.setGroup(QStringLiteral("DATA"));
  EXPECT_TRUE(settings.SetItem(QStringLiteral("PATH"), path()));
  ado::createDatabase(databaseFile(), databasePassword(), schemaStatements());
}

TestHome::~TestHome() {
  gMainForm.reset();
  gConnection.reset();
  runtime::setAppPath({});
}

std::shared_ptr<ado::Connection> TestHome::connect() const {
  auto connection = std::make_shared<ado::Connection>();
  connection->Open(BuildConnectionString());
  return connection;
}

int TestHome::execute(const QString& sql) const {
  return connect()->Execute(sql);
}

QString TestHome::single(const QString& sql) const {
  ado::Recordset rows;
  rows.Open(sql, connect());
  if (rows.IsEOF()) return QStringLiteral("<none>");
  const QVariant value = rows.Fields(0).Value();
  return runtime::isNull(value) ? QStringLiteral("<null>") : runtime::toText(value);
}

void TestHome::insertEmployee(const QString& number, const QString& name, int department,
                              const QByteArray& photo, const QString& barcode,
                              const std::shared_ptr<ado::Connection>& connection) const {
  ado::Recordset rows;
  rows.Open(QStringLiteral("SELECT * FROM Employee WHERE 1 = 0"), connection ? connection : connect(),
            ado::CursorType::Keyset, ado::LockType::Optimistic);
  rows.AddNew();
  rows.Fields(QStringLiteral("ENUMBER")).setValue(number);
  rows.Fields(QStringLiteral("ENAME")).setValue(name);
  rows.Fields(QStringLiteral("DID")).setValue(department);
  if (!barcode.isNull()) rows.Fields(QStringLiteral("EBARCODE")).setValue(barcode);
  if (!photo.isNull()) rows.Fields(QStringLiteral("HEADIMG")).setValue(photo);
  rows.Fields(QStringLiteral("ENTERDATE")).setValue(QDateTime(QDate(2026, 11, 2), QTime(0, 0)));
  rows.Update();
}

QByteArray TestHome::tinyJpeg() {
  // A grey square of 8 by 8 pixels, baseline.
  return QByteArray::fromHex(
      "ffd8ffe000104a46494600010100000100010000ffdb0043001b12141714111b1716171e1c1b2028422b28252528513a"
      "3d3042605565645f555d5b6a7899816a7190735b5d85b586909ea3abadab6780bcc9baa6c799a8aba4ffc0000b080008"
      "000801011100ffc40014000100000000000000000000000000000001ffc4001410010000000000000000000000000000"
      "0000ffda0008010100003f001fffd9");
}

}  // namespace support
