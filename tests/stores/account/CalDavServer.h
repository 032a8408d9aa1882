#pragma once

#include <memory>
#include <string>

#include "ServerProcess.h"
#include "TempFolder.h"

namespace tarnel::test {

// A real calendar server on this machine, with a user "joe".
class CalDavServer {
 public:
  // running: one that runs already, by TARNEL_TEST_CALDAV="PORT HOME PASSWORD", for servers that take long to set up.
  enum class Kind { radicale, xandikos, running };

  explicit CalDavServer(Kind kind);

  int port() const { return port_; }
  std::string url(const std::string& path = "/") const;
  // Where joe's collections are made: "/joe/".
  std::string home() const { return home_; }
  // Empty for a server that asks for none.
  std::string password() const { return password_; }

 private:
  void startRadicale();
  void startXandikos();
  void findRunning();

  TempFolder folder_;
  int port_;
  std::string home_;
  std::string password_;
  std::unique_ptr<ServerProcess> process_;
};

}  // namespace tarnel::test
