#pragma once

#include "Provider.h"

namespace tarnel::test {

// For tests that open no database: every open fails and says so.
class NoDatabase : public ado::Provider {
 public:
  std::shared_ptr<ado::Session> open(std::string_view connectionString) override;
};

}  // namespace tarnel::test
