#pragma once

#include <string>
#include <string_view>

namespace tarnel {

// A flat text record: entries NAME=value, each ended by a TAB, in the order of writing. Names are kept in upper case.
// There is no escape: a value may hold "=" but no TAB. Lookup is a plain text search for NAME=, so that a name is also
// found as the tail of a longer one or inside a value before it.
//
// Every operation fails with 0x80044719 where an entry has no TAB after it, which only a text set from outside can
// bring about.
class CStringBag {
 public:
  CStringBag() = default;
  explicit CStringBag(std::string contents) : contents_(std::move(contents)) {}

  void Clear() { contents_.clear(); }
  // Empty when there is no such item.
  std::string ReadItem(std::string_view name) const;
  // Takes away every place that holds the whole entry, to the letter.
  void RemoveItem(std::string_view name);
  // Replaces the item; it is then the last one.
  void WriteItem(std::string_view name, std::string_view value);

  const std::string& Contents() const { return contents_; }
  void setContents(std::string contents) { contents_ = std::move(contents); }

 private:
  std::string contents_;
};

}  // namespace tarnel
