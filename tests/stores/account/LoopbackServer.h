#pragma once

#include <atomic>
#include <functional>
#include <list>
#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace tarnel::test {

// A request as a server hears it.
struct Heard {
  std::string method;
  std::string target;
  std::map<std::string, std::string> headers;  // names lower-case
  std::string body;

  std::string header(const std::string& name) const;
};

// A connection's end in the server's hands.
class Wire {
 public:
  explicit Wire(int socket) : socket_(socket) {}

  // Whether the other side still listens.
  bool write(std::string_view bytes) const;
  // The next request; an empty method when the other side has gone.
  Heard read();
  // An answer, read until the other side ends; names of headers lower-case. Status 0 for none.
  void readAnswer(int& status, std::vector<std::pair<std::string, std::string>>& headers, std::string& body);
  // Returns when the other side has gone.
  void awaitEnd() const;

 private:
  bool fill();
  std::string readHead();

  int socket_;
  std::string buffer_;
};

// An HTTP server on this machine, on a free port, whose every byte the test decides.
class LoopbackServer {
 public:
  // Called on a thread of the connection's own; whether the connection goes on. The answer is the wire's to write.
  using Answer = std::function<bool(const Heard&, Wire&)>;

  explicit LoopbackServer(Answer answer);
  // Each request gets the next of these texts; the last one is given again and again.
  explicit LoopbackServer(std::vector<std::string> answers);
  ~LoopbackServer();

  int port() const { return port_; }
  std::string url(const std::string& path = "/") const { return "http://127.0.0.1:" + std::to_string(port_) + path; }
  std::vector<Heard> heard() const;
  // "METHOD target" of each request, a line each.
  std::string log() const;
  int connections() const { return connections_; }

 private:
  void accept();
  void serve(int socket);

  Answer answer_;
  int listener_ = -1;
  int port_ = 0;
  mutable std::mutex mutex_;
  std::vector<Heard> heard_;
  std::list<int> open_;
  std::list<std::thread> threads_;
  std::atomic<int> connections_ = 0;
  std::thread accepting_;
};

// "HTTP/1.1 STATUS x", headers (each with its line end), a length and the body.
std::string httpAnswer(int status, const std::string& body = "", const std::string& headers = "");

// A socket that is connected to a port of this machine; -1 when nobody listens there.
int connectTo(int port);

}  // namespace tarnel::test
