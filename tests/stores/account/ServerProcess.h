#pragma once

#include <string>
#include <thread>
#include <vector>

namespace tarnel::test {

// A program that serves on this machine until it is destroyed; it goes with the test, however that ends.
class ServerProcess {
 public:
  // Returns once a line of what the program writes has `ready` in it; throws with what it wrote when it ends before.
  ServerProcess(const std::vector<std::string>& command, const std::string& ready);
  ~ServerProcess();
  ServerProcess(const ServerProcess&) = delete;
  ServerProcess& operator=(const ServerProcess&) = delete;

 private:
  int process_ = 0;
  int output_ = -1;
  std::thread reading_;  // so that the program never waits for somebody to read it
};

// A port that nobody listened to a moment ago.
int freePort();

// Runs a program to its end; throws unless that is 0.
void runProgram(const std::vector<std::string>& command);

}  // namespace tarnel::test
