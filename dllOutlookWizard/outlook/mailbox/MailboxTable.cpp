#include "MailboxTable.h"

#include <algorithm>

#include "Failure.h"

namespace tarnel::mailbox {
namespace {

using outlook::mapi::RestrictionKind;

constexpr std::int32_t subjectTag = 0x0037001E;  // PR_SUBJECT

[[noreturn]] void failTable(const std::string& problem) {
  throw Failure(failure::automation, "The table can't be searched: " + problem + ".", "Redemption.MAPITable");
}

}  // namespace

outlook::Restriction& TableRestriction::Add(RestrictionKind kind) {
  if (kind_ != RestrictionKind::conjunction) failTable("only a conjunction takes further restrictions");
  return *parts_.emplace_back(std::make_unique<TableRestriction>(kind));
}

std::int64_t TableRestriction::nameId() const {
  const auto tag = static_cast<std::uint32_t>(tag_);
  const std::int64_t id = tag >> 16;
  const std::int64_t type = tag & 0xFFFF;
  if (id < schema::firstNameId || type != outlook::mapi::typeString8)
    failTable("property tag " + std::to_string(tag) + " is no named text property");
  return id;
}

void TableRestriction::addTo(TableSearch& search) const {
  SqlCondition& where = search.where;
  if (kind_ == RestrictionKind::exists) {
    where.sql += " AND EXISTS (SELECT 1 FROM userProperties p WHERE p.item = i.id AND p.name = ?)";
    where.values.emplace_back(nameId());
  } else if (kind_ == RestrictionKind::property) {
    if (relop_ != outlook::mapi::relopEqual) failTable("it compares for equality only");
    // An item has one value of a name, so that a join names no item twice; a list of ids would be built anew each time.
    const std::string table = "p" + std::to_string(where.values.size());
    search.joins += " JOIN userProperties " + table + " ON " + table + ".item = i.id";
    where.sql += " AND " + table + ".name = ? AND " + table + ".value = ?";
    where.values.emplace_back(nameId());
    where.values.emplace_back(value_);
  }
  for (const auto& part : parts_) part->addTo(search);
}

void MailboxTable::setItem(std::shared_ptr<outlook::Items> items) {
  items_ = std::dynamic_pointer_cast<StoredItems>(items);
  if (items && !items_) failTypeMismatch();
  Clear();
}

StoredItems& MailboxTable::items() const {
  if (!items_) failObjectNotSet();
  return *items_;
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
  TableSearch search;
  building_->addTo(search);
  inForce_ = std::move(search);
}

bool MailboxTable::FindFirst(bool forward) {
  StoredItems& folder = items();
  matches_.clear();
  position_.reset();
  if (!inForce_) return false;
  Store& store = folder.mailbox()->store;
  StoreStatement rows = store.prepare("SELECT " + std::string(itemColumns) + " FROM items i" + inForce_->joins +
                                      " WHERE +i.folder = ?" + inForce_->where.sql + " ORDER BY i.id");
  rows.bind(folder.folder()).bind(inForce_->where.values);
  while (rows.step()) {
    if (forward && matches_.empty()) folder.mailbox()->found.keep(store, readItem(rows));
    matches_.push_back(rows.number(0));
  }
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
  StoredItems& folder = items();
  if (!position_ || *position_ >= matches_.size()) return {};
  const std::int64_t id = matches_[*position_];
  if (const ItemRecord* found = folder.mailbox()->found.get(folder.mailbox()->store, id)) return rowOf(*found);
  const auto item = findItem(folder.mailbox()->store, id);
  // Gone or moved away since the search began.
  if (!item || item->folder != folder.folder()) return {};
  return rowOf(*item);
}

std::vector<Variant> MailboxTable::rowOf(const ItemRecord& item) const {
  std::vector<Variant> row;
  for (const std::int32_t tag : columns_) row.push_back(column(item, tag));
  return row;
}

Variant MailboxTable::column(const ItemRecord& item, std::int32_t tag) const {
  if (tag == outlook::mapi::entryId) return entryIdOf(items_->mailbox()->store, item).bytes();
  if (tag == subjectTag) return item.subject;
  failTable("it has no column " + std::to_string(static_cast<std::uint32_t>(tag)));
}

}  // namespace tarnel::mailbox
