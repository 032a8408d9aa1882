#include "NoDatabase.h"

#include <string>

#include "Failure.h"

namespace tarnel::test {

std::shared_ptr<ado::Session> NoDatabase::open(std::string_view connectionString) {
  throw Failure(failure::engine, "This test has no database: " + std::string(connectionString));
}

}  // namespace tarnel::test
