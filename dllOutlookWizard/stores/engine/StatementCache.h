#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

struct sqlite3;
struct sqlite3_stmt;

namespace tarnel::sqlite {

// The prepared statements of one connection that wait for their next run: most take longer to prepare than to run.
class StatementCache {
  struct TextHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>{}(text); }
  };
  using Handle = std::unique_ptr<sqlite3_stmt, int (*)(sqlite3_stmt*)>;
  using ByText = std::unordered_map<std::string, Handle, TextHash, std::equal_to<>>;

 public:
  // A statement that is taken out for a run, with its text.
  class Lease {
   public:
    // False when the engine couldn't prepare it; the connection holds its complaint.
    explicit operator bool() const { return !node_.empty(); }
    sqlite3_stmt* handle() const { return node_.mapped().get(); }

   private:
    friend class StatementCache;
    explicit Lease(ByText::node_type node) : node_(std::move(node)) {}
    ByText::node_type node_;
  };

  // The first statement of `sql`, prepared if need be. A lease that isn't given back ends with the statement.
  Lease take(sqlite3* database, std::string_view sql);
  void giveBack(Lease lease);

 private:
  ByText idle_;
};

}  // namespace tarnel::sqlite
