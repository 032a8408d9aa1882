#include "CalDavServer.h"

#include <cstdlib>
#include <sstream>

namespace tarnel::test {

CalDavServer::CalDavServer(Kind kind) : port_(freePort()) {
  if (kind == Kind::radicale)
    startRadicale();
  else if (kind == Kind::xandikos)
    startXandikos();
  else
    findRunning();
}

void CalDavServer::startRadicale() {
  home_ = "/joe/";
  password_ = "p\xC3\xA4ssword1";
  const std::string users = folder_.write("users", "joe:" + password_ + "\n");
  const std::string config =
      folder_.write("config", "[server]\nhosts = 127.0.0.1:" + std::to_string(port_) +
                                  "\n[auth]\ntype = htpasswd\nhtpasswd_filename = " + users +
                                  "\nhtpasswd_encryption = plain\ndelay = 0\n[storage]\nfilesystem_folder = " +
                                  (folder_ / "files").string() + "\n[logging]\nlevel = info\n");
  process_ = std::make_unique<ServerProcess>(
      std::vector<std::string>{"/usr/bin/python3", "-m", "radicale", "--config", config}, "Listening on");
}

void CalDavServer::startXandikos() {
  home_ = "/joe/calendars/";
  process_ = std::make_unique<ServerProcess>(
      std::vector<std::string>{"/usr/bin/xandikos", "-l", "127.0.0.1", "-p", std::to_string(port_), "-d",
                               folder_ / "files", "--defaults", "--current-user-principal", "/joe/"},
      "Running on");
}

void CalDavServer::findRunning() {
  const char* told = std::getenv("TARNEL_TEST_CALDAV");
  std::istringstream words(told ? told : "");
  words >> port_ >> home_ >> password_;
}

std::string CalDavServer::url(const std::string& path) const {
  return "http://127.0.0.1:" + std::to_string(port_) + path;
}

}  // namespace tarnel::test
