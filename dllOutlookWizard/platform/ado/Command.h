#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "Provider.h"

namespace tarnel::ado {

// A statement that returns no rows.
class Command {
 public:
  // Connects at once. Failure when the connection string leads nowhere.
  Command(Provider& provider, std::string_view connectionString);

  void setCommandText(std::string statement) { statement_ = std::move(statement); }
  // The number of rows touched.
  std::int32_t Execute();

 private:
  std::shared_ptr<Session> session_;
  std::string statement_;
};

}  // namespace tarnel::ado
