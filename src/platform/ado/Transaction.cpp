#include "ado/Transaction.h"

#include "ado/AdoError.h"

namespace ado {

Transaction::Transaction(Connection& connection) : m_connection(connection) {
  m_connection.BeginTrans();
}

Transaction::~Transaction() {
  if (m_done) return;
  try {
    m_connection.RollbackTrans();
  } catch (const AdoError&) {
    // The engine ends a transaction by itself after some failures. Whatever state it is in now, the next
    // operation opens a new connection.
    m_connection.Close();
  }
}

void Transaction::commit() {
  m_connection.CommitTrans();
  m_done = true;
}

}  // namespace ado
