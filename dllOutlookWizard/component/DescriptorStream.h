#pragma once

#include <array>
#include <istream>
#include <ostream>
#include <streambuf>

namespace tarnel {

// The bytes of a file descriptor, which stays its owner's and open.
class DescriptorBuffer : public std::streambuf {
 public:
  explicit DescriptorBuffer(int descriptor) : descriptor_(descriptor) {}

 protected:
  // As much as is there; waits only for the first byte.
  int_type underflow() override;
  int_type overflow(int_type byte) override;
  std::streamsize xsputn(const char* bytes, std::streamsize count) override;
  int sync() override;

 private:
  int descriptor_;
  std::array<char, 4096> read_{};
  std::string unwritten_;
};

class DescriptorInput : private DescriptorBuffer, public std::istream {
 public:
  explicit DescriptorInput(int descriptor) : DescriptorBuffer(descriptor), std::istream(this) {}
};

// Writes when it is flushed.
class DescriptorOutput : private DescriptorBuffer, public std::ostream {
 public:
  explicit DescriptorOutput(int descriptor) : DescriptorBuffer(descriptor), std::ostream(this) {}
};

}  // namespace tarnel
