#include "EntryId.h"

namespace tarnel::mailbox {
namespace {

constexpr std::size_t storeIdSize = 16;
constexpr std::size_t numberSize = 8;

void append(Bytes& bytes, std::int64_t number) {
  const auto value = static_cast<std::uint64_t>(number);
  for (int shift = 56; shift >= 0; shift -= 8) bytes.push_back(static_cast<std::uint8_t>(value >> shift & 0xFF));
}

std::int64_t numberAt(const std::string& bytes, std::size_t at) {
  std::uint64_t value = 0;
  for (std::size_t i = 0; i < numberSize; ++i) value = value << 8 | static_cast<unsigned char>(bytes[at + i]);
  return static_cast<std::int64_t>(value);
}

int digit(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  return -1;
}

}  // namespace

std::string hexText(const Bytes& bytes) {
  constexpr std::string_view digits = "0123456789ABCDEF";
  std::string text;
  text.reserve(bytes.size() * 2);
  for (const std::uint8_t byte : bytes) {
    text.push_back(digits[byte >> 4]);
    text.push_back(digits[byte & 0xF]);
  }
  return text;
}

Bytes EntryId::bytes() const {
  Bytes bytes(storeId.begin(), storeId.end());
  append(bytes, item);
  if (original) append(bytes, *original);
  return bytes;
}

std::string EntryId::text() const { return hexText(bytes()); }

std::optional<EntryId> EntryId::parse(std::string_view text) {
  constexpr std::size_t itemSize = storeIdSize + numberSize;
  if (text.size() != itemSize * 2 && text.size() != (itemSize + numberSize) * 2) return {};
  std::string bytes;
  for (std::size_t i = 0; i < text.size(); i += 2) {
    const int high = digit(text[i]), low = digit(text[i + 1]);
    if (high < 0 || low < 0) return {};
    bytes.push_back(static_cast<char>(high << 4 | low));
  }
  EntryId id{bytes.substr(0, storeIdSize), numberAt(bytes, storeIdSize), {}};
  if (bytes.size() > itemSize) id.original = numberAt(bytes, itemSize);
  return id;
}

}  // namespace tarnel::mailbox
