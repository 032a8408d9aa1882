#pragma once

#include <memory>
#include <string>
#include <vector>

#include "ItemCursor.h"
#include "ItemQuery.h"
#include "Mailbox.h"

namespace tarnel::mailbox {

// Reads a folder's items page by page, each page from where the one before it ended, so that a walk over n items costs
// n, the first item of a large folder costs one, and a change in between neither repeats an item nor leaves one out.
class PagedCursor : public ItemCursor {
 public:
  PagedCursor(std::shared_ptr<Mailbox> mailbox, ItemQuery query)
      : mailbox_(std::move(mailbox)), query_(std::move(query)) {}

  std::int64_t count() override;
  std::optional<ItemRecord> at(std::int64_t index) override;
  std::optional<ItemRecord> first() override;
  std::optional<ItemRecord> next() override;

 private:
  struct Row {
    ItemRecord item;
    SqlValue sortKey;
  };
  // A run of rows, and how far it is used up.
  struct Page {
    std::vector<Row> rows;
    std::int64_t start = 0;           // place of its first row
    std::size_t used = 0;             // rows that a walk has passed
    std::size_t size = smallestPage;  // of the next page: they grow while a walk goes on
    std::uint64_t generation = 0;     // 0 before it is first filled
  };
  static constexpr std::size_t smallestPage = 1;  // many a search asks for the first item alone
  static constexpr std::size_t largestPage = 256;

  // The rows after `last`, or, without it, from `offset` on.
  void fill(Page& page, const Row* last, std::int64_t offset);
  std::string source() const;

  std::shared_ptr<Mailbox> mailbox_;
  ItemQuery query_;
  Page page_;
  Page walk_;
  std::optional<Row> walked_;  // the row that the walk gave last
};

}  // namespace tarnel::mailbox
