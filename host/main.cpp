#include "CommandLine.h"

int main(int argc, char** argv) { return tarnel::host::runCommandLine(argc, argv); }
