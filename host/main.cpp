#include <csignal>

#include "CommandLine.h"

int main(int argc, char** argv) {
  // A file that may not grow is then a failed write, which is told, and no sudden end.
  std::signal(SIGXFSZ, SIG_IGN);
  return tarnel::host::runCommandLine(argc, argv);
}
