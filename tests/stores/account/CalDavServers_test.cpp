// What the calendar rooms make of real servers, alone and with faults on the way.

#include <optional>

#include "CalDavServer.h"
#include "CalendarCollection.h"
#include "DavBodies.h"
#include "DavFailure.h"
#include "Discovery.h"
#include "FaultProxy.h"
#include "HttpFixture.h"
#include "Items.h"
#include "Writes.h"
#include "WrittenListing.h"

namespace tarnel::account {
namespace {

namespace faults = test::faults;
using test::CalDavServer;
using Kind = DavWrite::Kind;

// Some servers want a UID once a user, so that each collection has its own.
std::string aTodo(const Url& url, const std::string& summary = "s") {
  const std::string uid = url.path;
  return "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//t//EN\r\nBEGIN:VTODO\r\nUID:" + uid +
         "\r\nDTSTAMP:20260101T000000Z\r\nSUMMARY:" + summary + "\r\nEND:VTODO\r\nEND:VCALENDAR\r\n";
}

struct CalDavServers : testing::TestWithParam<CalDavServer::Kind> {
  static void TearDownTestSuite() { server_.reset(); }

  // A new collection on the server, reached through a proxy.
  CalDavServers() {
    static int number = 0;
    if (!server_) server_.emplace(GetParam());
    proxy_.emplace(server_->port());
    HttpSettings settings;
    settings.user = "joe";
    settings.password = server_->password();
    client_.emplace(urlOf(proxy_->server().url()), settings);
    collection_ = urlOf(proxy_->server().url(server_->home() + "list" + std::to_string(++number) + "/"));
    for (const char* old : {".", "../other/"}) write(Kind::remove, item(old));  // of an earlier run
    const std::string wanted = bodies::makeCalendar("To do & more", {"VTODO", "VEVENT"});
    EXPECT_EQ(write(Kind::makeCalendar, collection_, {}, wanted).status, 201);
  }

  bool isXandikos() const { return GetParam() == CalDavServer::Kind::xandikos; }
  Url item(const std::string& name) const { return *resolveUrl(collection_, name); }
  DavWritten write(Kind kind, const Url& url, const ETag& etag = {}, const std::string& body = "", const Url& to = {}) {
    return writeOne(*client_, {kind, url, etag, body, to});
  }
  DavWritten create(const std::string& name) { return write(Kind::create, item(name), {}, aTodo(item(name))); }
  std::string verdictOf(const DavWritten& written) {
    constexpr const char* names[] = {"done",     "look", "absent",  "unsupported", "refused",
                                     "password", "busy", "notSent", "unknown"};
    return names[static_cast<int>(written.verdict)];
  }
  // The listing since the last one, "+" and "-", sorted. What is gone from a full one was told before it or never
  // there.
  std::string list(std::map<std::string, ETag> known = {}) {
    DavConnection dav(*client_);
    WrittenListing taker;
    taker.known = std::move(known);
    try {
      const ListingEnd end = listCollection(dav, collection_, token_, taker);
      token_ = end.syncToken;
      etags_ = taker.etags;
      std::string told = end.full ? "full:" : "";
      for (const auto& [path, etag] : etags_) told += " +" + path.substr(path.rfind('/') + 1);
      for (std::size_t at = 0; !end.full && (at = taker.text.find('-', at)) != std::string::npos; ++at)
        told += " " + taker.text.substr(at, taker.text.find(' ', at) - at);
      return told;
    } catch (const DavFailure&) {
      return "failed";
    }
  }
  std::vector<std::string> textsOf(const std::vector<Url>& urls) {
    DavConnection dav(*client_);
    std::vector<std::string> texts;
    missing_ = readItems(dav, collection_, urls, [&](DavItem&& read) { texts.push_back(read.text); });
    return texts;
  }

  static inline std::optional<CalDavServer> server_;
  std::optional<test::FaultProxy> proxy_;
  std::optional<CurlClient> client_;
  Url collection_;
  std::string token_;
  std::map<std::string, ETag> etags_;
  MissingItems missing_;
};

TEST_P(CalDavServers, discoveryFindsTheCollectionFromTheServersAddressAndFromItsOwn) {
  DavConnection dav(*client_);
  for (const Url& given : {urlOf(proxy_->server().url()), collection_}) {
    const Discovery found = discover(dav, given);
    const auto ours = std::find_if(found.collections.begin(), found.collections.end(),
                                   [&](const auto& calendar) { return calendar.url == collection_; });
    ASSERT_NE(ours, found.collections.end());
    EXPECT_TRUE(found.principal.path.ends_with("/joe/"));
    EXPECT_EQ(ours->name, "To do & more");
    EXPECT_TRUE(ours->writable && ours->syncs && !ours->syncToken.empty() && ours->ctag.size() > 5);
    EXPECT_TRUE(ours->takes("VTODO") && ours->takes("VEVENT") && !ours->takes("VX"));
  }
}

TEST_P(CalDavServers, aChangeIsMadeOnceAndOnlyInTheExpectedState) {
  const DavWritten first = create("a b+\xC3\xA4@c.ics");
  const Url url = item("a b+\xC3\xA4@c.ics");
  EXPECT_EQ(verdictOf(first) + verdictOf(create("a b+\xC3\xA4@c.ics")), "donelook");
  ASSERT_FALSE(first.etag.isNone());
  EXPECT_EQ(verdictOf(write(Kind::update, url, ETag("other"), aTodo(url, "2"))), "look");
  const DavWritten second = write(Kind::update, url, first.etag, aTodo(url, "3"));
  EXPECT_EQ(verdictOf(second), "done");
  EXPECT_NE(second.etag, first.etag);
  EXPECT_EQ(list(), "full: +a%20b%2B%C3%A4%40c.ics");
  EXPECT_EQ(etags_.at(url.path), second.etag);
  EXPECT_EQ(verdictOf(write(Kind::remove, url, first.etag)), "look");
  EXPECT_EQ(verdictOf(write(Kind::remove, url, second.etag)), "done");
  const std::string again = verdictOf(write(Kind::remove, url, second.etag));
  EXPECT_TRUE(again == "absent" || again == "look") << again;
  EXPECT_EQ(verdictOf(write(Kind::create, item("junk.ics"), {}, "no calendar")), isXandikos() ? "look" : "refused");
}

TEST_P(CalDavServers, aTokenTellsWhatHasChangedSince) {
  for (const char* name : {"a.ics", "b.ics", "c.ics"}) create(name);
  EXPECT_EQ(list(), "full: +a.ics +b.ics +c.ics");
  EXPECT_EQ(list(), "");
  create("d.ics");
  write(Kind::update, item("a.ics"), etags_[item("a.ics").path], aTodo(item("a.ics"), "changed"));
  write(Kind::remove, item("b.ics"));
  EXPECT_EQ(list(), " +a.ics +d.ics -b.ics");
  token_.clear();
  list();
  const auto all = etags_;
  for (const auto fault :
       {faults::TokenFault::forbidden, faults::TokenFault::serverError, faults::TokenFault::fullList}) {
    proxy_->add(faults::refusedToken(fault));
    const int before = proxy_->faults();
    EXPECT_EQ(list(all), "full: +a.ics +c.ics +d.ics");
    EXPECT_EQ(proxy_->faults(), before + 1);
    token_ = "http://x/" + token_;
    EXPECT_EQ(list(all), "full: +a.ics +c.ics +d.ics") << "a token that was never given";
  }
}

TEST_P(CalDavServers, itemsAreReadSeveralWays) {
  create("a.ics");
  create("b.ics");
  DavConnection dav(*client_);
  const auto texts = textsOf({item("a.ics"), item("nowhere.ics"), item("b.ics")});
  EXPECT_EQ(texts.size(), 2u);
  EXPECT_EQ(missing_.absent.size() + missing_.silent.size(), 1u);
  std::string all;
  EXPECT_EQ(readAllItems(dav, collection_, "VTODO", [&](DavItem&& read) { all += read.text; }), 2u);
  EXPECT_EQ(readAllItems(dav, collection_, "VEVENT", [](DavItem&&) {}), 0u);
  EXPECT_TRUE(all.find(item("a.ics").path) != std::string::npos && all.find(item("b.ics").path) != std::string::npos);
  EXPECT_TRUE(readItem(dav, item("a.ics"))->text.starts_with("BEGIN:VCALENDAR"));
  EXPECT_FALSE(readItem(dav, item("nowhere.ics")));
}

TEST_P(CalDavServers, aMoveIsDoneOrToldToBeUnknown) {
  const DavWritten made = create("a.ics");
  const Url there = *resolveUrl(collection_, "../other/a.ics");
  write(Kind::makeCalendar, *resolveUrl(collection_, "../other/"), {}, bodies::makeCalendar("o", {"VTODO"}));
  // The server has to see its own address, not the proxy's.
  Url own = there;
  own.port = server_->port();
  const std::string verdict = verdictOf(write(Kind::move, item("a.ics"), made.etag, "", own));
  EXPECT_EQ(verdict, isXandikos() ? "unsupported" : "done");
  DavConnection dav(*client_);
  EXPECT_EQ(readItem(dav, there).has_value(), !isXandikos());
}

TEST_P(CalDavServers, aWrongPasswordAndNoCollectionAreTold) {
  DavConnection dav(*client_);
  const auto faultAt = [](DavConnection& connection, const Url& url) {
    try {
      readCollection(connection, url);
      return -1;
    } catch (const DavFailure& failure) {
      return static_cast<int>(failure.fault());
    }
  };
  EXPECT_EQ(faultAt(dav, *resolveUrl(collection_, "../nowhere/")), static_cast<int>(DavFault::absent));
  if (server_->password().empty()) return;
  HttpSettings wrong;
  wrong.user = "joe";
  wrong.password = "wrong";
  CurlClient stranger(collection_, wrong);
  DavConnection other(stranger);
  EXPECT_EQ(faultAt(other, collection_), static_cast<int>(DavFault::password));
}

TEST_P(CalDavServers, aCutConnectionLeavesTheOutcomeOpenAndALookTells) {
  DavConnection dav(*client_);
  proxy_->add(faults::cutBefore("PUT"));
  EXPECT_EQ(verdictOf(create("a.ics")), "unknown");
  EXPECT_FALSE(readItem(dav, item("a.ics")));
  proxy_->add(faults::cutAfter("PUT"));
  EXPECT_EQ(verdictOf(create("a.ics")), "unknown");
  EXPECT_TRUE(readItem(dav, item("a.ics")));
  EXPECT_EQ(verdictOf(create("a.ics")), "look");
  proxy_->add(faults::answers("PUT", 429, "Retry-After: 7"));
  EXPECT_EQ(create("b.ics").retryAfter, std::chrono::seconds(7));
}

TEST_P(CalDavServers, aDamagedListIsNoList) {
  for (const char* name : {"a.ics", "b.ics", "c.ics"}) create(name);
  proxy_->add(faults::halfBody("REPORT"));
  EXPECT_EQ(list(), "failed");
  proxy_->add(faults::emptyMultistatus("REPORT"));
  EXPECT_EQ(list(), "full: +a.ics +b.ics +c.ics") << "listed in another way";
  proxy_->add(faults::emptyMultistatus("REPORT"));
  proxy_->add(faults::emptyMultistatus("PROPFIND"));
  token_.clear();
  EXPECT_EQ(list(), "failed");
  proxy_->add(faults::lateListing("b.ics"));
  EXPECT_EQ(list(), "full: +a.ics +c.ics");
  DavConnection dav(*client_);
  EXPECT_TRUE(readItem(dav, item("b.ics"))) << "what a list leaves out may be there";
}

TEST_P(CalDavServers, tagsRewritesAndAddressesAreTheServersToChange) {
  proxy_->add(faults::tags(faults::TagFault::packed));
  const DavWritten made = create("a.ics");
  EXPECT_EQ(verdictOf(write(Kind::update, item("a.ics"), made.etag, aTodo(item("a.ics"), "2"))), "done");
  proxy_->add(faults::tags(faults::TagFault::weak));
  EXPECT_TRUE(create("b.ics").etag.isWeak());
  proxy_->add(faults::tags(faults::TagFault::missing));
  EXPECT_TRUE(create("c.ics").etag.isNone());
  proxy_->add(faults::rewritten("SUMMARY:s", "SUMMARY:other"));
  create("d.ics");
  EXPECT_NE(textsOf({item("d.ics")}).at(0).find("SUMMARY:other"), std::string::npos);
  proxy_->add(faults::renamed("a.ics", "z.ics"));
  proxy_->add(faults::doubled("b.ics", "twin.ics"));
  EXPECT_EQ(list(), "full: +b.ics +c.ics +d.ics +twin.ics +z.ics");
  EXPECT_EQ(textsOf({item("a.ics"), item("z.ics"), item("twin.ics")}).size(), 2u);
}

INSTANTIATE_TEST_SUITE_P(Radicale, CalDavServers, testing::Values(CalDavServer::Kind::radicale));
INSTANTIATE_TEST_SUITE_P(Xandikos, CalDavServers, testing::Values(CalDavServer::Kind::xandikos));
INSTANTIATE_TEST_SUITE_P(Running, CalDavServers, testing::Values(CalDavServer::Kind::running));

}  // namespace
}  // namespace tarnel::account
