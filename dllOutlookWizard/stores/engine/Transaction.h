#pragma once

namespace tarnel::sqlite {

class Connection;

// A transaction that goes back unless it was committed.
class Transaction {
 public:
  // One that writes takes the write lock at once; one that reads sees one state of the file throughout.
  enum class Kind { reading, writing };

  explicit Transaction(Connection& connection, Kind kind = Kind::writing);
  ~Transaction();
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;
  void commit();

 private:
  Connection& connection_;
  bool open_ = true;
};

}  // namespace tarnel::sqlite
