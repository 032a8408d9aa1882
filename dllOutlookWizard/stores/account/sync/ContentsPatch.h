#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "Contents.h"

namespace tarnel::account {

// Changes to a calendar text that leave all its other lines as they are.
class ContentsPatch {
 public:
  // `text` outlives the patch.
  explicit ContentsPatch(const Contents& text) : text_(text) {}

  // These lines in place of the part's lines of that field.
  void replace(const std::string& part, const std::string& field, std::vector<std::string> lines);
  void remove(const std::string& part) { removed_.insert(part); }
  void add(const mailbox::IcsComponent& component) { added_.push_back(&component); }

  bool isEmpty() const { return fields_.empty() && removed_.empty() && added_.empty(); }

  // The text with the changes. The parts changed get `stamp` as DTSTAMP and LAST-MODIFIED, and the next SEQUENCE where
  // they have one.
  std::string apply(const std::string& stamp) const;

 private:
  using Lines = std::vector<std::string>;

  Lines patched(const ContentsPart& part, const std::map<std::string, Lines>& fields, const std::string& stamp) const;

  const Contents& text_;
  std::map<std::string, std::map<std::string, Lines>> fields_;  // by part
  std::set<std::string> removed_;
  std::vector<const mailbox::IcsComponent*> added_;
};

}  // namespace tarnel::account
