#pragma once

#include <functional>
#include <string>
#include <vector>

#include "DavConnection.h"
#include "ETag.h"

namespace tarnel::account {

// An item as the server has it.
struct DavItem {
  Url url;
  ETag etag;  // none where the server has none
  std::string text;
};

using TakeItem = std::function<void(DavItem&&)>;

struct MissingItems {
  std::vector<Url> absent;  // the server says that nothing is there
  std::vector<Url> silent;  // it says nothing of them, which means nothing
};

// Reads items by their addresses, 200 at a time. Throws DavFailure; what was handed on by then is true.
MissingItems readItems(DavConnection& dav, const Url& collection, const std::vector<Url>& urls, const TakeItem& take);

// Reads all items of a kind, "VTODO" or "VEVENT", in one answer; how many. The caller compares with its listing: a
// server may leave some out, and may name others that belong to the kind only in part.
std::size_t readAllItems(DavConnection& dav, const Url& collection, std::string_view component, const TakeItem& take);

// Reads one item by itself. None when the server says that nothing is there (404, 410); DavFailure for anything else.
std::optional<DavItem> readItem(DavConnection& dav, const Url& url);

}  // namespace tarnel::account
