#include "EntryId.h"

#include "Conversions.h"

namespace tarnel::mailbox {
namespace {

constexpr std::size_t storeIdSize = 16;
constexpr std::size_t numberSize = 8;

void append(Bytes& bytes, std::int64_t number) {
  const auto value = static_cast<std::uint64_t>(number);
  for (int shift = 56; shift >= 0; shift -= 8) bytes.push_back(static_cast<std::uint8_t>(value >> shift & 0xFF));
}

std::int64_t numberAt(const Bytes& bytes, std::size_t at) {
  std::uint64_t value = 0;
  for (std::size_t i = 0; i < numberSize; ++i) value = value << 8 | bytes[at + i];
  return static_cast<std::int64_t>(value);
}

}  // namespace

Bytes EntryId::bytes() const {
  Bytes bytes(storeId.begin(), storeId.end());
  append(bytes, item);
  if (original) append(bytes, *original);
  return bytes;
}

std::string EntryId::text() const { return hexText(bytes()); }

std::optional<EntryId> EntryId::parse(std::string_view text) {
  constexpr std::size_t itemSize = storeIdSize + numberSize;
  const auto bytes = bytesOfHex(text);
  if (!bytes || (bytes->size() != itemSize && bytes->size() != itemSize + numberSize)) return {};
  EntryId id{std::string(bytes->begin(), bytes->begin() + storeIdSize), numberAt(*bytes, storeIdSize), {}};
  if (bytes->size() > itemSize) id.original = numberAt(*bytes, itemSize);
  return id;
}

}  // namespace tarnel::mailbox
