#include "LoopbackServer.h"

#include <arpa/inet.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <memory>
#include <stdexcept>

namespace tarnel::test {
namespace {

sockaddr_in loopback(int port) {
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_port = htons(static_cast<std::uint16_t>(port));
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  return address;
}

std::string lower(std::string text) {
  for (char& c : text) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
  return text;
}

// Of a request or an answer, names lower-case.
std::vector<std::pair<std::string, std::string>> headersIn(const std::string& head) {
  std::vector<std::pair<std::string, std::string>> headers;
  for (std::size_t at = head.find("\r\n") + 2; at < head.size(); at = head.find("\r\n", at) + 2) {
    const std::size_t colon = head.find(':', at);
    const std::size_t value = head.find_first_not_of(' ', colon + 1);
    headers.emplace_back(lower(head.substr(at, colon - at)), head.substr(value, head.find("\r\n", at) - value));
  }
  return headers;
}

LoopbackServer::Answer inTurn(std::vector<std::string> answers) {
  auto turn = std::make_shared<std::atomic<std::size_t>>(0);
  return [answers = std::move(answers), turn](const Heard&, Wire& wire) {
    return wire.write(answers[std::min(turn->fetch_add(1), answers.size() - 1)]);
  };
}

}  // namespace

std::string Heard::header(const std::string& name) const {
  const auto found = headers.find(name);
  return found == headers.end() ? "" : found->second;
}

bool Wire::write(std::string_view bytes) const {
  while (!bytes.empty()) {
    const ssize_t sent = send(socket_, bytes.data(), bytes.size(), MSG_NOSIGNAL);
    if (sent <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(sent));
  }
  return true;
}

bool Wire::fill() {
  std::array<char, 65536> part{};
  const ssize_t count = recv(socket_, part.data(), part.size(), 0);
  if (count > 0) buffer_.append(part.data(), static_cast<std::size_t>(count));
  return count > 0;
}

std::string Wire::readHead() {
  std::size_t end = 0;
  while ((end = buffer_.find("\r\n\r\n")) == std::string::npos)
    if (!fill()) return {};
  std::string head = buffer_.substr(0, end + 2);
  buffer_.erase(0, end + 4);
  return head;
}

Heard Wire::read() {
  Heard heard;
  const std::string head = readHead();
  if (head.empty()) return heard;
  for (auto& [name, value] : headersIn(head)) heard.headers[name] = value;
  const std::string length = heard.header("content-length");
  const std::size_t size = length.empty() ? 0 : std::stoul(length);
  while (buffer_.size() < size)
    if (!fill()) return {};
  heard.body = buffer_.substr(0, size);
  buffer_.erase(0, size);
  const std::size_t blank = head.find(' ');
  heard.target = head.substr(blank + 1, head.find(' ', blank + 1) - blank - 1);
  heard.method = head.substr(0, blank);
  return heard;
}

void Wire::readAnswer(int& status, std::vector<std::pair<std::string, std::string>>& headers, std::string& body) {
  const std::string head = readHead();
  if (head.empty()) return;
  status = std::stoi(head.substr(head.find(' ')));
  headers = headersIn(head);
  while (fill()) continue;
  body = std::move(buffer_);
}

void Wire::awaitEnd() const {
  char byte = 0;
  while (recv(socket_, &byte, 1, 0) > 0) continue;
}

LoopbackServer::LoopbackServer(std::vector<std::string> answers) : LoopbackServer(inTurn(std::move(answers))) {}

LoopbackServer::LoopbackServer(Answer answer) : answer_(std::move(answer)) {
  listener_ = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  sockaddr_in address = loopback(0);
  socklen_t size = sizeof address;
  if (bind(listener_, reinterpret_cast<sockaddr*>(&address), size) != 0 || listen(listener_, 16) != 0 ||
      getsockname(listener_, reinterpret_cast<sockaddr*>(&address), &size) != 0)
    throw std::runtime_error("no port on this machine");
  port_ = ntohs(address.sin_port);
  accepting_ = std::thread([this] { accept(); });
}

LoopbackServer::~LoopbackServer() {
  shutdown(listener_, SHUT_RDWR);
  accepting_.join();
  {
    const std::scoped_lock lock(mutex_);
    for (const int socket : open_) shutdown(socket, SHUT_RDWR);
  }
  for (std::thread& thread : threads_) thread.join();
  close(listener_);
}

void LoopbackServer::accept() {
  for (int socket = 0; (socket = ::accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC)) >= 0;) {
    ++connections_;
    const std::scoped_lock lock(mutex_);
    open_.push_back(socket);
    threads_.emplace_back([this, socket] { serve(socket); });
  }
}

void LoopbackServer::serve(int socket) {
  Wire wire(socket);
  for (;;) {
    const Heard request = wire.read();
    if (request.method.empty()) break;
    {
      const std::scoped_lock lock(mutex_);
      heard_.push_back(request);
    }
    if (!answer_(request, wire)) break;
  }
  const std::scoped_lock lock(mutex_);
  open_.remove(socket);
  shutdown(socket, SHUT_RDWR);
  close(socket);
}

std::vector<Heard> LoopbackServer::heard() const {
  const std::scoped_lock lock(mutex_);
  return heard_;
}

std::string LoopbackServer::log() const {
  std::string text;
  for (const Heard& request : heard()) text += request.method + " " + request.target + "\n";
  return text;
}

std::string httpAnswer(int status, const std::string& body, const std::string& headers) {
  return "HTTP/1.1 " + std::to_string(status) + " x\r\n" + headers + "Content-Length: " + std::to_string(body.size()) +
         "\r\n\r\n" + body;
}

int connectTo(int port) {
  const int socket = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  const sockaddr_in address = loopback(port);
  if (connect(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0) return socket;
  close(socket);
  return -1;
}

}  // namespace tarnel::test
