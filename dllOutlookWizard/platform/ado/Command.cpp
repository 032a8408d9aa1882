#include "Command.h"

#include "Failure.h"

namespace tarnel::ado {

Command::Command(Provider& provider, std::string_view connectionString)
    : session_(connect(provider, connectionString)) {}

std::int32_t Command::Execute() { return session_->execute(statement_); }

}  // namespace tarnel::ado
