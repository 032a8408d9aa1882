#pragma once

#include <map>
#include <memory>
#include <string>

#include "Provider.h"

namespace tarnel::sqlite {

class SqliteSession;

// Opens the file that "Data Source" names in a connection string; all other keys are ignored, the provider's name too.
// While somebody holds a session on a file, others get the same one, unless the path leads to another file by now.
class SqliteProvider : public ado::Provider {
 public:
  std::shared_ptr<ado::Session> open(std::string_view connectionString) override;

 private:
  std::map<std::string, std::weak_ptr<SqliteSession>> sessions_;
};

}  // namespace tarnel::sqlite
