#pragma once

#include "FakeErrorReport.h"
#include "FakeUtilities.h"
#include "Faults.h"
#include "MemoryRegistry.h"
#include "Platform.h"

namespace tarnel::test {

// The database engine, the registry and the host's closed libraries with faults() in front of each call.

class FaultyDatabase : public ado::Provider {
 public:
  explicit FaultyDatabase(Provider& real) : real_(real) {}
  std::shared_ptr<ado::Session> open(std::string_view connectionString) override {
    return std::make_shared<Session>(faults().call("database.open", [&] { return real_.open(connectionString); }));
  }

 private:
  class Session : public ado::Session {
   public:
    explicit Session(std::shared_ptr<ado::Session> real) : real_(std::move(real)) {}
    ado::Result query(std::string_view statement) override {
      return faults().call("database.query", [&] { return real_->query(statement); });
    }
    std::int32_t execute(std::string_view statement) override {
      return faults().call("database.execute", [&] { return real_->execute(statement); });
    }
    std::vector<ado::Written> write(const ado::Result& shape, const std::vector<ado::Change>& changes) override {
      return faults().call("database.write", [&] { return real_->write(shape, changes); });
    }
    std::vector<std::optional<ado::Row>> reread(const ado::Result& shape,
                                                const std::vector<ado::Identity>& rows) override {
      return faults().call("database.reread", [&] { return real_->reread(shape, rows); });
    }

   private:
    std::shared_ptr<ado::Session> real_;
  };
  Provider& real_;
};

// What the wizard reads; its writes are the host's own.
class FaultyRegistry : public MemoryRegistry {
 public:
  bool keyExists(std::string_view key) const override {
    return faults().call("registry.keyExists", [&] { return MemoryRegistry::keyExists(key); });
  }
  std::vector<std::string> subKeys(std::string_view key) const override {
    return faults().call("registry.subKeys", [&] { return MemoryRegistry::subKeys(key); });
  }
};

class FaultyUtilities : public FakeUtilities {
 public:
  void run(Code code, const std::string& first, const std::string& second) override {
    faults().call("utilities.run", [&] { FakeUtilities::run(code, first, second); });
  }
};

class FaultyErrorReport : public FakeErrorReport {
 public:
  void report(const FailureReport& failure) override {
    faults().call("report.report", [&] { FakeErrorReport::report(failure); });
  }
};

}  // namespace tarnel::test
