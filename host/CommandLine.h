#pragma once

namespace tarnel::host {

// Does what the program was called for. Gives its exit code: 0 done, 1 failed, 2 called in a wrong way; what was wrong
// is told on the standard error stream.
int runCommandLine(int argc, char** argv);

}  // namespace tarnel::host
