#include "records/clsEmployee.h"

#include <tuple>

#include <QFile>

#include "ado/Recordset.h"
#include "ado/Stream.h"
#include "foundation/Attempt.h"
#include "foundation/SqlText.h"
#include "foundation/clsDbConn.h"
#include "records/PhotoFile.h"
#include "runtime/Conversions.h"
#include "runtime/ProgramDirectory.h"

namespace {

constexpr qsizetype barcodeDigits = 15;

QByteArray fileContent(const QString& path) {
  ado::Stream stream;
  stream.Type = ado::StreamType::Binary;
  stream.Open();
  stream.LoadFromFile(path);
  QByteArray bytes = stream.Read();
  stream.Close();
  return bytes;
}

}  // namespace

clsEmployee::~clsEmployee() {
  const QString path = m_headImg.trimmed();
  if (!path.isEmpty() && runtime::isNormalFile(path)) std::ignore = QFile::remove(path);
}

void clsEmployee::setENAME(const QString& name) {
  m_ename = name.trimmed();
}

QString clsEmployee::EBARCODE() const {
  return m_ebarcode.toUpper();
}

void clsEmployee::setEBARCODE(const QString& barcode) {
  m_ebarcode = barcode.trimmed().toUpper();
}

bool clsEmployee::Add() {
  m_lastFailure.clear();
  if (m_ebarcode.isEmpty() || m_ename.isEmpty() || m_headImg.isEmpty() || m_enumber.isEmpty()) return false;
  if (m_did <= 0) return false;
  return attempt(m_lastFailure, false, [this] {
    write();
    return true;
  });
}

void clsEmployee::write() const {
  const std::shared_ptr<ado::Connection> connection = clsDbConn().GetDbConn();
  const QByteArray photo = fileContent(m_headImg.trimmed());
  ado::Recordset row;
  row.Open(QStringLiteral("select * from Employee where ENUMBER = ") + sql::quoted(m_enumber), connection,
           ado::CursorType::Keyset, ado::LockType::Optimistic);
  if (row.IsEOF()) row.AddNew();
  row.Fields(QStringLiteral("EBARCODE")).setValue(EBARCODE());
  row.Fields(QStringLiteral("ENUMBER")).setValue(m_enumber);
  row.Fields(QStringLiteral("ENAME")).setValue(m_ename);
  row.Fields(QStringLiteral("DID")).setValue(int{m_did});
  row.Fields(QStringLiteral("HEADIMG")).setValue(photo);
  row.Fields(QStringLiteral("ENTERDATE")).setValue(m_enterDate);
  row.Update();
  row.Close();
}

bool clsEmployee::savetoXML(const QString& FileName) {
  m_lastFailure.clear();
  if (m_ename.isEmpty() || m_headImg.isEmpty()) return false;
  if (m_did <= 0) return false;
  return attempt(m_lastFailure, false, [&] {
    writeXml(FileName);
    return true;
  });
}

void clsEmployee::writeXml(const QString& fileName) const {
  const std::shared_ptr<ado::Connection> connection = clsDbConn().GetDbConn();
  const QByteArray photo = fileContent(m_headImg.trimmed());
  ado::Recordset row;
  row.Open(QStringLiteral("select * from employee where 1 = 0"), connection, ado::CursorType::Keyset,
           ado::LockType::Optimistic);
  row.AddNew();
  row.Fields(QStringLiteral("ENAME")).setValue(m_ename);
  row.Fields(QStringLiteral("DID")).setValue(int{m_did});
  row.Fields(QStringLiteral("HEADIMG")).setValue(photo);
  row.Fields(QStringLiteral("ENTERDATE")).setValue(m_enterDate);
  // Nobody deletes an older file before: Save replaces it, and only by a complete one.
  row.Save(fileName, ado::PersistFormat::Xml);
  // The row is given up: it has never been in the database.
  row.Delete();
  row.Close();
}

int clsEmployee::LoadByENUMBER() {
  m_lastFailure.clear();
  if (m_enumber.isEmpty()) return NotFound;
  return attempt(m_lastFailure, int{Failed},
                 [this] { return load(QStringLiteral("ENUMBER=") + sql::quoted(m_enumber), Key::Number); });
}

int clsEmployee::IsExist() {
  m_lastFailure.clear();
  if (m_ebarcode.isEmpty()) return NotFound;
  return attempt(m_lastFailure, int{Failed}, [this] {
    return load(QStringLiteral("EBARCODE=") + sql::quoted(EBARCODE()), Key::Barcode);
  });
}

int clsEmployee::load(const QString& condition, Key key) {
  ado::Recordset row;
  row.Open(QStringLiteral("SELECT Employee.*, Dept.DNAME FROM Employee, Dept "
                          "WHERE Employee.DID = Dept.ID AND ") +
               condition,
           clsDbConn().GetDbConn());
  if (row.IsEOF()) return NotFound;
  setENAME(runtime::toText(row.Fields(QStringLiteral("ENAME")).Value()));
  setdid(runtime::toInt16(row.Fields(QStringLiteral("DID")).Value()));
  setENTERDATE(runtime::toDateTime(row.Fields(QStringLiteral("ENTERDATE")).Value()));
  setDNAME(runtime::toText(row.Fields(QStringLiteral("DNAME")).Value()));
  setEBARCODE(runtime::toText(row.Fields(QStringLiteral("EBARCODE")).Value()));
  if (key == Key::Barcode) setENUMBER(runtime::toText(row.Fields(QStringLiteral("ENUMBER")).Value()));
  setID(runtime::toInt32(row.Fields(QStringLiteral("ID")).Value()));
  setHeadImg(photoFile(m_enumber));
  writePhotoFile(m_enumber, row.Fields(QStringLiteral("HEADIMG")).Value());
  row.Close();
  return Found;
}

bool clsEmployee::Remove(const QString& number) {
  m_lastFailure.clear();
  if (number.isEmpty()) return false;
  return attempt(m_lastFailure, false, [&number] {
    const QString statement = QStringLiteral("delete from employee where ENUMBER = ") + sql::quoted(number);
    return ado::required(clsDbConn().GetDbConn()).Execute(statement) >= 1;
  });
}

bool clsEmployee::RemoveMe() {
  return Remove(m_enumber);
}

bool clsEmployee::UpdateEBarCode() {
  return attempt(m_lastFailure, false, [this] {
    setEBARCODE(unusedCode());
    return true;
  });
}

QString clsEmployee::unusedCode() {
  const std::shared_ptr<ado::Connection> connection = clsDbConn().GetDbConn();
  for (;;) {
    QString code = CreateRandomCode();
    ado::Recordset holder;
    holder.Open(QStringLiteral("SELECT * FROM EMPLOYEE WHERE EBARCODE=") + sql::quoted(code), connection);
    if (holder.IsEOF()) return code;
  }
}

QString clsEmployee::CreateRandomCode() {
  constexpr float fourDigits = 10000;
  QString code;
  while (code.size() < barcodeDigits) {
    code += QString::number(static_cast<int>(m_random.next() * fourDigits)).right(4);
  }
  return code.right(barcodeDigits);
}
