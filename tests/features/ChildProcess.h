#pragma once

#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <csignal>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>

namespace tarnel::test {

// Far beyond what a loaded machine needs; only a fault waits as long.
inline constexpr std::chrono::milliseconds longPatience{60000};

// Asks again and again until the answer is yes; false when it never was before the deadline.
inline bool comesTrue(const std::function<bool()>& condition) {
  const auto deadline = std::chrono::steady_clock::now() + longPatience;
  while (!condition()) {
    if (std::chrono::steady_clock::now() > deadline) return false;
    poll(nullptr, 0, 10);
  }
  return true;
}

// A program that runs beside the test, started by a shell command, with its standard input and output on pipes.
// At the end it is stopped with all that it started.
class ChildProcess {
 public:
  explicit ChildProcess(const std::string& shellCommand) {
    const auto input = makePipe();
    const auto output = makePipe();
    std::signal(SIGPIPE, SIG_IGN);  // a child that has ended is told by its exit code
    process_ = fork();
    if (process_ < 0) throw std::runtime_error("No process can be started");
    if (process_ == 0) {
      setpgid(0, 0);
      dup2(input[0], STDIN_FILENO);
      dup2(output[1], STDOUT_FILENO);
      execl("/bin/sh", "sh", "-c", shellCommand.c_str(), nullptr);
      _exit(127);
    }
    setpgid(process_, process_);
    close(input[0]);
    close(output[1]);
    input_ = input[1];
    output_ = output[0];
  }
  ~ChildProcess() {
    closeInput();
    close(output_);
    ::kill(-process_, SIGTERM);
    if (comesTrue([this] { return exitCode().has_value(); })) return;
    kill();
  }
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;

  void write(const std::string& text) {
    for (std::size_t written = 0; written < text.size();) {
      const ssize_t size = ::write(input_, text.data() + written, text.size() - written);
      if (size <= 0) return;
      written += static_cast<std::size_t>(size);
    }
  }
  void closeInput() {
    if (input_ >= 0) close(input_);
    input_ = -1;
  }
  // The next line of the output; none when the output ended or no line came in time.
  std::optional<std::string> readLine() {
    while (read_.find('\n') == std::string::npos) {
      pollfd ready{output_, POLLIN, 0};
      if (poll(&ready, 1, static_cast<int>(longPatience.count())) <= 0) return {};
      std::array<char, 65536> part{};
      const ssize_t size = read(output_, part.data(), part.size());
      if (size <= 0) return {};
      read_.append(part.data(), static_cast<std::size_t>(size));
    }
    const std::size_t end = read_.find('\n');
    std::string line = read_.substr(0, end);
    read_.erase(0, end + 1);
    return line;
  }
  // As when the machine dies: nothing of it runs on. False when it had ended already.
  bool kill() {
    if (exitCode()) return false;
    ::kill(-process_, SIGKILL);
    int status = 0;
    waitpid(process_, &status, 0);
    // What the shell started is gone, too, when nobody holds the pipe any more.
    for (std::array<char, 4096> rest{}; read(output_, rest.data(), rest.size()) > 0;) continue;
    exitCode_ = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return WIFSIGNALED(status);
  }
  // The exit code, -1 after a signal; none while it still runs.
  std::optional<int> exitCode() {
    int status = 0;
    if (!exitCode_ && waitpid(process_, &status, WNOHANG) == process_)
      exitCode_ = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return exitCode_;
  }

 private:
  static std::array<int, 2> makePipe() {
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) throw std::runtime_error("No pipe can be made");
    return ends;
  }

  pid_t process_ = -1;
  int input_ = -1;
  int output_ = -1;
  std::string read_;
  std::optional<int> exitCode_;
};

}  // namespace tarnel::test
