#include "Listing.h"

#include "DavBodies.h"
#include "DavFailure.h"

namespace tarnel::account {
namespace {

constexpr int mostPages = 10'000;

bool isGone(int status) { return status == 404 || status == 410; }

// The collection itself, or another one, is no item.
bool isCollection(const DavResponse& response, const Url& collection) {
  return response.url.path.ends_with('/') || response.url.path + "/" == collection.path;
}

class Lister {
 public:
  Lister(DavConnection& dav, const Url& collection, ListingTaker& taker)
      : dav_(dav), collection_(collection), taker_(taker) {}

  // None when the server has to be asked for all.
  std::optional<ListingEnd> changes(const std::string& token) {
    try {
      const std::string next = pages(token);
      // All there is, in place of the changes.
      if (next.empty() || (knownOnes_ > 0 && goneOnes_ == 0)) return {};
      return ListingEnd{false, next};
    } catch (const DavFailure& failure) {
      // Refusals of a token that were seen: 403, 500. If the server is in trouble, the next question tells.
      if (failure.fault() == DavFault::lost || failure.status() < 400 || isFinal(failure)) throw;
      return {};
    }
  }

  ListingEnd all() {
    taker_.beginsFull();
    try {
      const std::string token = pages("");
      if (!token.empty()) return {true, token};
    } catch (const DavFailure& failure) {
      if (failure.fault() != DavFault::unsupported && failure.fault() != DavFault::forbidden &&
          failure.fault() != DavFault::refused)
        throw;
    }
    // It doesn't know the report, or has answered something else.
    taker_.beginsFull();
    byDepth();
    return {true, ""};
  }

 private:
  static bool isFinal(const DavFailure& failure) {
    return failure.fault() == DavFault::password || failure.fault() == DavFault::busy ||
           failure.fault() == DavFault::absent;
  }

  // The token of the last page; empty when one had none.
  std::string pages(std::string token) {
    for (int page = 0; page < mostPages; ++page) {
      bool more = false;
      const auto end = dav_.ask({"REPORT", collection_, "0", bodies::syncCollection(token)},
                                [&](DavResponse&& response) { more = take(response) || more; });
      if (end.syncToken.empty()) return {};
      taker_.endsPage();
      if (!more) return end.syncToken;
      if (end.syncToken == token) break;
      token = end.syncToken;
    }
    throw DavFailure(DavFault::unreadable, "The server " + collection_.place() +
                                               " never comes to the end of the list at " + collection_.path + ".");
  }

  // Whether there is more than the server lists at a time.
  bool take(const DavResponse& response) {
    if (isCollection(response, collection_)) return response.status == moreToList;
    if (isGone(response.status)) {
      ++goneOnes_;
      taker_.gone(response.url);
    } else {  // one whose state the server can't tell is there, too
      const ETag etag(response.text(xml::dav, "getetag"));
      if (!etag.isNone() && taker_.knew(response.url, etag)) ++knownOnes_;
      taker_.member(response.url, etag);
    }
    return false;
  }

  // The last resort: servers were seen to take minutes for it.
  void byDepth() {
    bool itself = false, cut = false;
    dav_.ask({"PROPFIND", collection_, "1", bodies::propfind("<d:resourcetype/><d:getetag/>")},
             [&](DavResponse&& response) {
               const XmlElement* type = response.property(xml::dav, "resourcetype");
               itself = itself || (response.status < 400 && isCollection(response, collection_));
               if (!type || !type->child(xml::dav, "collection")) cut = take(response) || cut;
             });
    // Each such listing begins with the collection; one without is none.
    if (!itself || cut)
      throw DavFailure(DavFault::unreadable,
                       "The server " + collection_.place() + " gives no complete list of " + collection_.path + ".");
    taker_.endsPage();
  }

  DavConnection& dav_;
  const Url& collection_;
  ListingTaker& taker_;
  std::size_t knownOnes_ = 0;
  std::size_t goneOnes_ = 0;
};

}  // namespace

ListingEnd listCollection(DavConnection& dav, const Url& collection, const std::string& token, ListingTaker& taker) {
  if (!token.empty())
    if (auto end = Lister(dav, collection, taker).changes(token)) return *end;
  return Lister(dav, collection, taker).all();
}

}  // namespace tarnel::account
