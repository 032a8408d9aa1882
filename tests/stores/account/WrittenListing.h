#pragma once

#include <map>

#include "Listing.h"

namespace tarnel::account {

// Writes a listing down: "full|", "+path etag", "-path", "|" at the end of a page.
struct WrittenListing final : ListingTaker {
  void beginsFull() override { text += "full|"; }
  void member(const Url& url, const ETag& etag) override {
    text += "+" + url.path.substr(url.path.rfind('/') + 1) + " ";
    etags[url.path] = etag;
  }
  void gone(const Url& url) override { text += "-" + url.path.substr(url.path.rfind('/') + 1) + " "; }
  void endsPage() override { text += "|"; }
  bool knew(const Url& url, const ETag& etag) const override {
    const auto found = known.find(url.path);
    return found != known.end() && found->second == etag;
  }

  std::string text;
  std::map<std::string, ETag> etags;  // of the members told
  std::map<std::string, ETag> known;
};

}  // namespace tarnel::account
