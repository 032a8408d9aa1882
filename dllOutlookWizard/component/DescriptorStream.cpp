#include "DescriptorStream.h"

#include <unistd.h>

#include <cerrno>

namespace tarnel {

std::streambuf::int_type DescriptorBuffer::underflow() {
  ssize_t size = 0;
  do size = read(descriptor_, read_.data(), read_.size());
  while (size < 0 && errno == EINTR);
  if (size <= 0) return traits_type::eof();
  setg(read_.data(), read_.data(), read_.data() + size);
  return traits_type::to_int_type(read_.front());
}

std::streambuf::int_type DescriptorBuffer::overflow(int_type byte) {
  if (!traits_type::eq_int_type(byte, traits_type::eof())) unwritten_ += traits_type::to_char_type(byte);
  return traits_type::not_eof(byte);
}

std::streamsize DescriptorBuffer::xsputn(const char* bytes, std::streamsize count) {
  unwritten_.append(bytes, static_cast<std::size_t>(count));
  return count;
}

int DescriptorBuffer::sync() {
  std::size_t written = 0;
  while (written < unwritten_.size()) {
    const ssize_t size = write(descriptor_, unwritten_.data() + written, unwritten_.size() - written);
    if (size < 0 && errno == EINTR) continue;
    if (size <= 0) break;
    written += static_cast<std::size_t>(size);
  }
  const bool all = written == unwritten_.size();
  unwritten_.clear();
  return all ? 0 : -1;
}

}  // namespace tarnel
