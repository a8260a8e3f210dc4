#pragma once

namespace solvane::sqlite {

class Connection;

/// A transaction that is undone unless it is committed.
class Transaction {
 public:
  /// `read` shows one moment of the index to every statement inside; `write` waits for the other
  /// writers first.
  enum class Kind { read, write };

  Transaction(Connection& connection, Kind kind);
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;
  ~Transaction();

  void commit();

 private:
  Connection& _connection;
};

}  // namespace solvane::sqlite
