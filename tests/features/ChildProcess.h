#pragma once

#include <sys/types.h>

#include <chrono>
#include <functional>
#include <optional>
#include <string>

namespace tarnel::test {

// A program that runs beside the test, started by a shell command, with its standard input and output on pipes.
// At the end it is stopped with all that it started.
class ChildProcess {
 public:
  explicit ChildProcess(const std::string& shellCommand);
  ~ChildProcess();
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;

  void write(const std::string& text);
  void closeInput();
  // The next line of the output; none when the output ended or no line came in time.
  std::optional<std::string> readLine();
  // As when the machine dies: nothing of it runs on. False when it had ended already.
  bool kill();
  // The exit code, -1 after a signal; none while it still runs.
  std::optional<int> exitCode();

 private:
  pid_t process_ = -1;
  int input_ = -1;
  int output_ = -1;
  std::string read_;
  std::optional<int> exitCode_;
};

// Far beyond what a loaded machine needs; only a fault waits as long.
inline constexpr std::chrono::milliseconds longPatience{60000};

// Asks again and again until the answer is yes; false when it never was before the deadline.
bool comesTrue(const std::function<bool()>& condition, std::chrono::milliseconds patience = longPatience);

}  // namespace tarnel::test
