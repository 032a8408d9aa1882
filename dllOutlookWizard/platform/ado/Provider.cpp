#include "Provider.h"

#include "Failure.h"

namespace tarnel::ado {

void failNotConnected() {
  throw Failure(failure::noConnection,
                "The connection cannot be used to perform this operation. It is either closed or invalid in this "
                "context.");
}

std::shared_ptr<Session> connect(Provider& provider, std::string_view connectionString) {
  if (connectionString.empty()) failNotConnected();
  return provider.open(connectionString);
}

}  // namespace tarnel::ado
