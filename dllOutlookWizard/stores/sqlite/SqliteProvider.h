#pragma once

#include <memory>

#include "Connections.h"
#include "Provider.h"

namespace tarnel::sqlite {

class SqliteSession;

// Opens the file that "Data Source" names in a connection string; all other keys are ignored, the provider's name too.
class SqliteProvider : public ado::Provider {
 public:
  SqliteProvider();
  ~SqliteProvider() override;

  std::shared_ptr<ado::Session> open(std::string_view connectionString) override;
  void rest() noexcept override;

 private:
  Connections<SqliteSession> sessions_;
};

}  // namespace tarnel::sqlite
