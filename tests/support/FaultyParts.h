#pragma once

#include "Doubles.h"
#include "Faults.h"
#include "FileRegistry.h"

namespace tarnel::test {

// The database engine, the registry and the host's closed libraries with faults() in front of each call.

class FaultyDatabase : public ado::Provider {
 public:
  explicit FaultyDatabase(Provider& real) : real_(real) {}
  std::shared_ptr<ado::Session> open(std::string_view connectionString) override {
    return std::make_shared<Session>(faults().call("database.open", [&] { return real_.open(connectionString); }));
  }

  void rest() noexcept override { real_.rest(); }

 private:
  class Session : public ado::Session {
   public:
    explicit Session(std::shared_ptr<ado::Session> real) : real_(std::move(real)) {}
#define CALL(Result, name, parameters, arguments)                                   \
  Result name parameters override {                                                 \
    return faults().call("database." #name, [&] { return real_->name arguments; }); \
  }
    CALL(ado::Result, query, (std::string_view statement), (statement))
    CALL(std::int32_t, execute, (std::string_view statement), (statement))
    CALL(std::vector<ado::Written>, write, (const ado::Result& shape, const std::vector<ado::Change>& changes),
         (shape, changes))
    CALL(std::vector<std::optional<ado::Row>>, reread,
         (const ado::Result& shape, const std::vector<ado::Identity>& rows), (shape, rows))
#undef CALL

   private:
    std::shared_ptr<ado::Session> real_;
  };
  Provider& real_;
};

// What the wizard reads; its writes are the host's own.
struct FaultyRegistry : FileRegistry {
  using FileRegistry::FileRegistry;
  bool keyExists(std::string_view key) const override {
    return faults().call("registry.keyExists", [&] { return FileRegistry::keyExists(key); });
  }
  std::vector<std::string> subKeys(std::string_view key) const override {
    return faults().call("registry.subKeys", [&] { return FileRegistry::subKeys(key); });
  }
};

struct FaultyUtilities : FakeUtilities {
  void run(Code code, const std::string& first, const std::string& second) override {
    faults().call("utilities.run", [&] { FakeUtilities::run(code, first, second); });
  }
};

struct FaultyErrorReport : FakeErrorReport {
  void report(const FailureReport& failure) override {
    faults().call("report.report", [&] { FakeErrorReport::report(failure); });
  }
};

}  // namespace tarnel::test
