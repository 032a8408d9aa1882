// Runs one fuzzer's program over files that are there, without the fuzzer: what was found once stays a test.

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <vector>

#include "Input.h"

int main(int argc, char** argv) {
  std::vector<std::filesystem::path> files;
  for (int i = 1; i < argc; ++i)
    for (const auto& entry : std::filesystem::directory_iterator(argv[i])) files.push_back(entry.path());
  std::sort(files.begin(), files.end());
  for (const auto& file : files) {
    std::cout << file.filename().string() << std::endl;
    std::ifstream in(file, std::ios::binary);
    const std::string contents{std::istreambuf_iterator<char>(in), {}};
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(contents.data()), contents.size());
  }
  std::cout << files.size() << " inputs" << std::endl;
  return files.empty() ? 1 : 0;
}
