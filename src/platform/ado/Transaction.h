#pragma once

#include "ado/Connection.h"

namespace ado {

/// A transaction that is rolled back unless it is committed.
class Transaction {
 public:
  /// Begins it; the connection must outlive it. Throws AdoError.
  explicit Transaction(Connection& connection);
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;
  ~Transaction();

  /// Throws AdoError; nothing was stored then.
  void commit();

 private:
  Connection& m_connection;
  bool m_done = false;
};

}  // namespace ado
