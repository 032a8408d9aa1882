#include "MailboxTable.h"

#include <algorithm>

#include "Failure.h"

namespace tarnel::mailbox {
namespace {

using outlook::mapi::PropertyCondition;
using outlook::mapi::RestrictionKind;

[[noreturn]] void failTable(const std::string& problem) {
  throw Failure(failure::automation, "The table can't be searched: " + problem + ".", "Redemption.MAPITable");
}

Variant column(const outlook::mapi::Row& row, std::int32_t tag) {
  if (tag == outlook::mapi::entryId) return row.entryId;
  if (tag == outlook::mapi::subject) return row.subject;
  failTable("it has no column " + std::to_string(static_cast<std::uint32_t>(tag)));
}

}  // namespace

outlook::Restriction& TableRestriction::Add(RestrictionKind kind) {
  if (kind_ != RestrictionKind::conjunction) failTable("only a conjunction takes further restrictions");
  return *parts_.emplace_back(std::make_unique<TableRestriction>(kind));
}

std::int32_t TableRestriction::nameId() const {
  const auto tag = static_cast<std::uint32_t>(tag_);
  const auto id = static_cast<std::int32_t>(tag >> 16);
  const auto type = static_cast<std::int32_t>(tag & 0xFFFF);
  if (id < outlook::mapi::firstNameId || type != outlook::mapi::typeString8)
    failTable("property tag " + std::to_string(tag) + " is no named text property");
  return id;
}

void TableRestriction::addTo(std::vector<PropertyCondition>& conditions) const {
  if (kind_ == RestrictionKind::exists) {
    conditions.push_back({nameId(), {}});
  } else if (kind_ == RestrictionKind::property) {
    if (relop_ != outlook::mapi::relopEqual) failTable("it compares for equality only");
    conditions.push_back({nameId(), value_});
  }
  for (const auto& part : parts_) part->addTo(conditions);
}

void MailboxTable::setItem(std::shared_ptr<outlook::Items> items) {
  items_ = std::move(items);
  Clear();
}

outlook::mapi::Contents& MailboxTable::contents() const {
  if (!items_) failObjectNotSet();
  return items_->MAPIOBJECT();
}

void MailboxTable::Clear() {
  building_.reset();
  inForce_.reset();
  matches_.clear();
  position_.reset();
}

outlook::Restriction& MailboxTable::SetKind(RestrictionKind kind) {
  building_ = std::make_unique<TableRestriction>(kind);
  return *building_;
}

void MailboxTable::Restrict() {
  if (!building_) failTable("no restriction was built");
  std::vector<PropertyCondition> conditions;
  building_->addTo(conditions);
  inForce_ = std::move(conditions);
}

bool MailboxTable::FindFirst(bool forward) {
  outlook::mapi::Contents& folder = contents();
  matches_.clear();
  position_.reset();
  if (!inForce_) return false;
  matches_ = folder.find(*inForce_);
  if (!forward) std::reverse(matches_.begin(), matches_.end());
  position_ = 0;
  return !matches_.empty();
}

bool MailboxTable::FindNext(bool forward) {
  if (!position_) return FindFirst(forward);
  if (*position_ < matches_.size()) ++*position_;
  return *position_ < matches_.size();
}

std::vector<Variant> MailboxTable::GetRow() {
  outlook::mapi::Contents& folder = contents();
  if (!position_ || *position_ >= matches_.size()) return {};
  const auto found = folder.row(matches_[*position_]);
  if (!found) return {};
  std::vector<Variant> row;
  for (const std::int32_t tag : columns_) row.push_back(column(*found, tag));
  return row;
}

}  // namespace tarnel::mailbox
