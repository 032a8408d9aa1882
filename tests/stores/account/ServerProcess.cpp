#include "ServerProcess.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <stdexcept>

#include "LoopbackServer.h"

namespace tarnel::test {
namespace {

int started(const std::vector<std::string>& command, int output) {
  std::vector<char*> words;
  for (const std::string& word : command) words.push_back(const_cast<char*>(word.c_str()));
  words.push_back(nullptr);
  const int process = fork();
  if (process != 0) return process;
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  dup2(output, STDOUT_FILENO);
  dup2(output, STDERR_FILENO);
  dup2(open("/dev/null", O_RDONLY), STDIN_FILENO);
  execvp(words[0], words.data());
  _exit(127);
}

std::string readPart(int from) {
  std::array<char, 4096> part{};
  const ssize_t count = read(from, part.data(), part.size());
  return count > 0 ? std::string(part.data(), static_cast<std::size_t>(count)) : std::string();
}

}  // namespace

ServerProcess::ServerProcess(const std::vector<std::string>& command, const std::string& ready) {
  std::array<int, 2> ends{};
  if (pipe2(ends.data(), O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
  process_ = started(command, ends[1]);
  close(ends[1]);
  output_ = ends[0];
  std::string told;
  while (told.find(ready) == std::string::npos) {
    const std::string part = readPart(output_);
    told += part;
    if (!part.empty()) continue;
    waitpid(process_, nullptr, 0);
    close(output_);
    throw std::runtime_error(command.front() + " doesn't serve: " + told);
  }
  reading_ = std::thread([this] {
    while (!readPart(output_).empty()) continue;
  });
}

ServerProcess::~ServerProcess() {
  kill(process_, SIGKILL);
  waitpid(process_, nullptr, 0);
  reading_.join();
  close(output_);
}

int freePort() {
  // A server of ours has taken one and gives it back.
  return LoopbackServer(std::vector<std::string>{""}).port();
}

void runProgram(const std::vector<std::string>& command) {
  int result = 0;
  waitpid(started(command, open("/dev/null", O_WRONLY | O_CLOEXEC)), &result, 0);
  if (result != 0) throw std::runtime_error(command.front() + " failed");
}

}  // namespace tarnel::test
