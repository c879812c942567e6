#include "foundation/clsDbConn.h"

#include "foundation/GlobalDefine.h"
#include "runtime/RuntimeError.h"

clsDbConn::clsDbConn() : m_Conn(gConnection) {}

std::shared_ptr<ado::Connection> clsDbConn::GetDbConn() {
  const bool isOpen = m_Conn && m_Conn->State() == ado::ObjectState::Open;
  if (!isOpen && !OpenConnection()) return {};
  return m_Conn;
}

bool clsDbConn::TestConn() {
  return OpenConnection();
}

bool clsDbConn::OpenConnection() {
  if (m_Conn && m_Conn->State() != ado::ObjectState::Closed) {
    m_Conn->Close();
    m_Conn.reset();
  }
  const QString text = BuildConnectionString();
  try {
    m_Conn = std::make_shared<ado::Connection>();
    m_Conn->Open(text);
  } catch (const runtime::RuntimeError&) {
    return false;  // the reason is kept by the layer below and comes with the error of whoever needs the
                   // connection
  }
  gConnection = m_Conn;
  return true;
}

QString BuildConnectionString() {
  return QStringLiteral("PROVIDER=Microsoft.Jet.OLEDB.4.0;Data Source=") + GetDataPath() +
         QStringLiteral("\\vorlent.dat;Jet OLEDB:Database password=") + databasePassword();
}

QString databasePassword() {
  return QStringLiteral("polnax");
}
