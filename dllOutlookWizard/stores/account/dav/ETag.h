#pragma once

#include <string>
#include <string_view>

namespace tarnel::account {

// What a server calls one state of an item. Proxies that pack an answer make it weak or add "-gzip" to it on the way,
// so that one state has several texts.
class ETag {
 public:
  ETag() = default;  // none
  // As a header or a property has it, with or without quotes.
  explicit ETag(std::string_view text);

  bool isNone() const { return value_.empty(); }
  // A weak one after a write may mean that the server has stored something else than what was sent.
  bool isWeak() const { return weak_; }
  // For If-Match: quoted and strong.
  std::string text() const;

  // Whether they name the same state.
  bool operator==(const ETag& other) const { return value_ == other.value_; }

 private:
  std::string value_;
  bool weak_ = false;
};

}  // namespace tarnel::account
