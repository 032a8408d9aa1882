#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "Redemption.h"

namespace tarnel::mailbox {

// A node of a table's restriction.
class TableRestriction : public outlook::Restriction {
 public:
  explicit TableRestriction(outlook::mapi::RestrictionKind kind) : kind_(kind) {}

  outlook::Restriction& Add(outlook::mapi::RestrictionKind kind) override;
  void setUlPropTag(std::int32_t tag) override { tag_ = tag; }
  void setRelop(std::int32_t relop) override { relop_ = relop; }
  void setLpProp(std::string value) override { value_ = std::move(value); }

  // Adds what this node asks for. Failure 440 for a relation or a property that the table can't search by.
  void addTo(std::vector<outlook::mapi::PropertyCondition>& conditions) const;

 private:
  std::int32_t nameId() const;

  outlook::mapi::RestrictionKind kind_;
  std::vector<std::unique_ptr<TableRestriction>> parts_;
  std::int32_t tag_ = 0;
  std::int32_t relop_ = outlook::mapi::relopEqual;
  std::string value_;
};

// Searches the folder of its items by named properties. A search finds what is in the folder when it starts: items that
// come while it walks don't lengthen the walk.
class MailboxTable : public outlook::MAPITable, private outlook::TableFilter {
 public:
  void setItem(std::shared_ptr<outlook::Items> items) override;
  void setColumns(std::vector<std::int32_t> tags) override { columns_ = std::move(tags); }
  outlook::TableFilter& Filter() override { return *this; }
  std::vector<Variant> GetRow() override;

 private:
  void Clear() override;
  outlook::Restriction& SetKind(outlook::mapi::RestrictionKind kind) override;
  void Restrict() override;
  bool FindFirst(bool forward) override;
  bool FindNext(bool forward) override;

  outlook::mapi::Contents& contents() const;

  std::shared_ptr<outlook::Items> items_;
  std::vector<std::int32_t> columns_;
  std::unique_ptr<TableRestriction> building_;
  std::optional<std::vector<outlook::mapi::PropertyCondition>> inForce_;
  std::vector<std::int64_t> matches_;
  std::optional<std::size_t> position_;  // none: before the first match
};

}  // namespace tarnel::mailbox
