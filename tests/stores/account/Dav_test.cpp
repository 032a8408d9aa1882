#include "CalendarCollection.h"
#include "DavFailure.h"
#include "Discovery.h"
#include "FailureOf.h"
#include "Items.h"
#include "ScriptedClient.h"
#include "Writes.h"
#include "WrittenListing.h"

namespace tarnel::account {
namespace {

const Url collection = urlOf("https://cal.example/joe/list/");

// "path etag, " of each response, then what kept the rest from coming.
std::string asked(const HttpAnswer& answer) {
  ScriptedClient client({answer});
  DavConnection dav(client);
  std::string told;
  try {
    dav.ask({"PROPFIND", collection, "1", "x"}, [&](DavResponse&& response) {
      told += response.url.path + " " + std::to_string(response.status) + response.text(xml::dav, "getetag") + ", ";
    });
  } catch (const DavFailure& failure) {
    told += failure.what();
  }
  return told;
}

TEST(DavTest, anAnswerIsReadByItsNamespacesWhateverThePrefixes) {
  const std::string plain =
      "<multistatus xmlns='DAV:'><response><href>a%40b.ics</href><href>/x/</href><propstat><prop><getetag> \"1\" "
      "</getetag><other xmlns='x:y'/></prop></propstat><propstat><prop><getetag>2</getetag></prop><status>HTTP/1.1 404 "
      "no</status></propstat><status>HTTP/1.1 200 OK</status></response></multistatus>";
  const std::string foreign =
      "<n:multistatus xmlns:n='DAV:' xmlns='x:y'><response/><n:response><n:href>http://CAL.example:80/a@b"
      "</n:href></n:response></n:multistatus>";
  EXPECT_EQ(asked(anAnswer(207, plain)), "/joe/list/a%40b.ics 200\"1\", /x/ 200\"1\", ");
  EXPECT_EQ(asked(anAnswer(207, foreign)), "/a%40b 0, ");
}

TEST(DavTest, whatIsNoWholeAnswerSaysSoAndNeverThatNothingIsThere) {
  const std::string item = aMember("/a", "1");
  const std::string whole = aMultistatus(item).body;
  HttpAnswer offline = anAnswer(0);
  offline.trouble = HttpTrouble::notReached;
  offline.reason = "Not reached.";
  std::string deep, wide;
  for (int i = 0; i < 40; ++i) deep += "<d:x>";
  for (int i = 0; i < 20'001; ++i) wide += "<d:x/>";
  const std::pair<HttpAnswer, const char*> cases[] = {
      {offline, "Not reached."},
      {anAnswer(200, "<!DOCTYPE html><html><body>Log in<br>"), "is no calendar server"},
      {anAnswer(207, "<!DOCTYPE html><html>"), "a page instead of calendar data"},
      {anAnswer(207, "<html><body/></html>"), "a page instead of calendar data"},
      {anAnswer(207, "{\"json\": 1}"), "a page instead of calendar data"},
      {anAnswer(207, ""), "breaks off"},
      {anAnswer(207, whole.substr(0, whole.size() - 9)), "/a 0\"1\", The answer of cal.example breaks off."},
      {anAnswer(207, whole + "<more/>"), "/a 0\"1\", What answers"},
      {anAnswer(207, "<!DOCTYPE m [<!ENTITY a 'aaaa'><!ENTITY b '&a;&a;&a;'>]>" + whole), "larger or deeper"},
      {anAnswer(207, "<!DOCTYPE m SYSTEM 'file:///etc/passwd'>" + whole), "larger or deeper"},
      {aMultistatus("<d:response>" + deep), "larger or deeper"},
      {aMultistatus("<d:response>" + wide + "</d:response>"), "larger or deeper"},
      {aMultistatus("<d:response/>"), "without an address"},
      {aMultistatus(aStatus("https://other.example/a", 200)), "items of another host, other.example"},
      {aMultistatus(aStatus("https://joe:x@cal.example/a", 200)), "an address that is none"},
      {anAnswer(401), "doesn't take the user or the password"},
      {anAnswer(403), "doesn't let this user do that at /joe/list/ (403)"},
      {anAnswer(410), "has nothing at /joe/list/ (410)"},
      {anAnswer(503), "to be left alone for a while (503)"},
      {anAnswer(502, whole), "answered Bad gateway (502) at /joe/list/"}};
  for (const auto& [answer, told] : cases) EXPECT_TRUE(test::contains(asked(answer), told));
}

TEST(DavTest, aBrokenAnswerIsNeverTakenForAWholeOne) {
  const std::string whole = aMultistatus(aMember("/a", "1", "BEGIN:&#13;\xC3\xA4") + aStatus("/b", 404)).body;
  for (std::size_t size = 0; size < whole.size(); ++size)
    EXPECT_TRUE(test::contains(asked(anAnswer(207, whole.substr(0, size))), ".")) << size;
  // Whatever is wrong with it, there is an answer; the sanitizers watch.
  std::uint32_t random = 1;
  for (int round = 0; round < 2000; ++round) {
    std::string broken = whole;
    for (int i = 0; i < 3; ++i) {
      random = random * 1664525u + 1013904223u;
      const std::size_t at = (random >> 8) % broken.size();
      if (random % 3 == 0)
        broken.erase(at, 1 + random % 5);
      else if (random % 3 == 1)
        broken[at] = static_cast<char>(random >> 16);
      else
        broken.insert(at, broken.substr((random >> 4) % broken.size(), 12));
    }
    asked(anAnswer(207, broken));
  }
}

TEST(DavTest, oneStateHasOneETagHoweverItWasPacked) {
  for (const char* text : {"\"a-1\"", "W/\"a-1\"", "\"a-1-gzip\"", " \"a-1;gzip\"\n", "a-1", "W/\"a-1--gzip\""})
    EXPECT_EQ(ETag(text).text(), "\"a-1\"") << text;
  EXPECT_TRUE(ETag("W/\"1\"").isWeak());
  EXPECT_TRUE(ETag("").isNone() && ETag("\"\"").isNone() && ETag() == ETag(" "));
  EXPECT_NE(ETag("\"a\""), ETag("\"A\""));
}

TEST(DavTest, aChangesAnswerIsReadForWhatItMeans) {
  using Kind = DavWrite::Kind;
  const std::string error =
      "<d:error xmlns:d='DAV:'><c:no-uid-conflict xmlns:c='urn:ietf:params:xml:ns:caldav'/></d:error>";
  HttpAnswer lost = anAnswer(200);
  lost.trouble = HttpTrouble::lost;
  HttpAnswer offline = anAnswer(0);
  offline.trouble = HttpTrouble::notReached;
  struct {
    Kind kind;
    HttpAnswer answer;
    DavVerdict verdict;
    int status;
  } const cases[] = {{Kind::create, anAnswer(201), DavVerdict::done, 201},
                     {Kind::update, anAnswer(412), DavVerdict::look, 412},
                     {Kind::update, aMultistatus(aStatus("/a", 200)), DavVerdict::done, 200},
                     {Kind::update, aMultistatus(aStatus("/a", 200) + aStatus("/a", 412)), DavVerdict::look, 412},
                     {Kind::remove, aMultistatus(""), DavVerdict::unknown, 207},
                     {Kind::remove, anAnswer(207, "<html>"), DavVerdict::unknown, 207},
                     {Kind::remove, aMultistatus(aStatus("http://other/", 200)), DavVerdict::unknown, 207},
                     {Kind::remove, anAnswer(404), DavVerdict::absent, 404},
                     {Kind::move, anAnswer(409), DavVerdict::unsupported, 409},
                     {Kind::create, anAnswer(409), DavVerdict::refused, 409},
                     {Kind::create, anAnswer(403, error), DavVerdict::refused, 403},
                     {Kind::create, anAnswer(507), DavVerdict::refused, 507},
                     {Kind::create, anAnswer(401), DavVerdict::password, 401},
                     {Kind::create, anAnswer(429), DavVerdict::busy, 429},
                     {Kind::create, anAnswer(503), DavVerdict::unknown, 503},
                     {Kind::create, anAnswer(301), DavVerdict::refused, 301},
                     {Kind::create, lost, DavVerdict::unknown, 200},
                     {Kind::create, offline, DavVerdict::notSent, 0}};
  for (const auto& [kind, answer, verdict, status] : cases) {
    DavWrite write;
    write.kind = kind;
    const DavWritten written = readWritten(write, answer);
    EXPECT_EQ(static_cast<int>(written.verdict), static_cast<int>(verdict)) << answer.status << answer.body;
    EXPECT_EQ(written.status, status);
  }
  const DavWritten refused = readWritten({}, anAnswer(403, error));
  EXPECT_TRUE(test::contains(refused.text, "answered Forbidden (403)"));
  EXPECT_TRUE(test::contains(refused.text, ", no-uid-conflict."));
}

TEST(DavTest, changesGoOutUnderTheirConditions) {
  ScriptedClient client({anAnswer(201, "", {{"ETag", "W/\"9-gzip\""}})});
  const ETag one("W/\"1-gzip\"");
  std::vector<DavWrite> writes(3);
  writes[0] = {DavWrite::Kind::create, collection, {}, "new", {}};
  writes[1] = {DavWrite::Kind::move, collection, one, "", urlOf("https://cal.example/b")};
  writes[2] = {DavWrite::Kind::remove, collection, one, "", {}};
  std::size_t next = 0;
  std::string told;
  writeAll(
      client, [&]() { return next < 3 ? std::optional(writes[next++]) : std::nullopt; },
      [&](std::size_t nth, const DavWritten& written) {
        told += std::to_string(nth) + written.etag.text() + (written.etag.isWeak() ? "weak " : " ");
      },
      8);
  EXPECT_EQ(told, "0\"9\"weak 1\"9\"weak 2\"9\"weak ");
  std::string heard;
  for (const HttpRequest& request : client.sent) {
    heard += request.method + " " + request.body;
    for (const HttpHeader& header : request.headers) heard += "|" + header.name + ": " + header.value;
    heard += "\n";
  }
  EXPECT_EQ(heard,
            "PUT new|If-None-Match: *|Content-Type: text/calendar; charset=utf-8\n"
            "MOVE |Destination: https://cal.example/b|Overwrite: F|If-Match: \"1\"\n"
            "DELETE |If-Match: \"1\"\n");
}

// What a listing with the token "t" tells, and the token at its end, when the server gives these answers.
std::string listed(std::vector<HttpAnswer> answers, std::map<std::string, ETag> known = {}) {
  ScriptedClient client(std::move(answers));
  DavConnection dav(client);
  WrittenListing taker;
  taker.known = std::move(known);
  try {
    const ListingEnd end = listCollection(dav, collection, "t", taker);
    taker.text += (end.full ? " all " : " changes ") + end.syncToken;
  } catch (const DavFailure& failure) {
    taker.text += std::string(" ") + failure.what();
  }
  for (const HttpRequest& request : client.sent) taker.text += " " + request.method;
  return taker.text;
}

TEST(DavTest, aListingIsAllOrTheChangesOrAFailure) {
  const auto page = [](const std::string& contents, const std::string& token) {
    return aMultistatus(contents + "<d:sync-token>" + token + "</d:sync-token>");
  };
  const std::string a = aMember("/joe/list/a", "1"), b = aMember("/joe/list/b", "2"),
                    goneC = aStatus("/joe/list/c", 404);
  const std::string more = aStatus("/joe/list/", 507), itself = aStatus("/joe/list", 200);
  const HttpAnswer refused = anAnswer(403, "<d:error xmlns:d='DAV:'><d:valid-sync-token/></d:error>");
  const std::map<std::string, ETag> knownA = {{"/joe/list/a", ETag("1")}}, olderA = {{"/joe/list/a", ETag("0")}};
  // Changes, in pages; a change of an item that was known in another state.
  EXPECT_EQ(listed({page(itself + a + goneC + more, "u"), page(b, "v")}, olderA),
            "+a -c |+b | changes v REPORT REPORT");
  EXPECT_EQ(listed({page("", "t")}), "| changes t REPORT");
  // A token that is no longer taken, in three ways.
  const std::string full = "full|+a +b | all v";
  EXPECT_EQ(listed({refused, page(a + b, "v")}), full + " REPORT REPORT");
  EXPECT_EQ(listed({anAnswer(500), page(a + b, "v")}), full + " REPORT REPORT");
  EXPECT_EQ(listed({page(a + b, "w"), page(a + b, "v")}, knownA), "+a +b |" + full + " REPORT REPORT");
  // A server that knows no tokens.
  const HttpAnswer depth = aMultistatus(itself + a + b);
  EXPECT_EQ(listed({anAnswer(501), anAnswer(501), depth}), "full|full|+a +b | all  REPORT REPORT PROPFIND");
  EXPECT_EQ(listed({aMultistatus(""), aMultistatus(""), depth}), "full|full|+a +b | all  REPORT REPORT PROPFIND");
  // Nothing may be concluded from these.
  EXPECT_TRUE(listed({aMultistatus("")}).starts_with("full|full| The server cal.example gives no complete list"));
  EXPECT_TRUE(listed({aMultistatus(""), aMultistatus(""), aMultistatus(itself + more)}).starts_with("full|full| The "));
  EXPECT_TRUE(
      listed({page(more, "u"), page(more, "u")}).starts_with("|| The server cal.example never comes to the end"));
  EXPECT_TRUE(
      listed({refused, page(a + more, "u"), anAnswer(500)}).starts_with("full|+a | The server cal.example answered"));
  for (const int status : {401, 404, 429})
    EXPECT_TRUE(listed({anAnswer(status), page(a, "v")}).ends_with(" REPORT")) << status;
  EXPECT_TRUE(listed({anAnswer(500)}).ends_with("Server error (500) at /joe/list/. REPORT REPORT"));
}

TEST(DavTest, itemsAreReadInPartsAndSilenceIsNoAbsence) {
  std::vector<Url> urls;
  for (int i = 0; i < 203; ++i) urls.push_back(urlOf(collection.text() + std::to_string(i)));
  ScriptedClient client({aMultistatus(aMember("/joe/list/0", "1", "BEGIN:A\n") + aStatus("/joe/list/1", 404) +
                                      aMember("/joe/list/stray", "1", "x")),
                         aMultistatus(aMember("/joe/list/201", "2", "BEGIN:B"))});
  DavConnection dav(client);
  std::string read;
  const auto missing = readItems(dav, collection, urls,
                                 [&](DavItem&& item) { read += item.url.path + item.etag.text() + item.text + " "; });
  EXPECT_EQ(read, "/joe/list/0\"1\"BEGIN:A\n /joe/list/201\"2\"BEGIN:B ");
  EXPECT_EQ(missing.absent, std::vector<Url>{urls[1]});
  EXPECT_EQ(missing.silent.size(), 200u);
  EXPECT_EQ(client.sent.size(), 2u);

  const auto one = [](const HttpAnswer& answer) -> std::string {
    ScriptedClient gives({answer});
    DavConnection connection(gives);
    try {
      const auto item = readItem(connection, collection);
      return item ? item->etag.text() : "absent";
    } catch (const DavFailure& failure) {
      return failure.what();
    }
  };
  EXPECT_EQ(one(anAnswer(200, "BEGIN:VCALENDAR\nEND:VCALENDAR", {{"ETag", "\"1-gzip\""}})), "\"1\"");
  EXPECT_EQ(one(anAnswer(404)), "absent");
  EXPECT_TRUE(test::contains(one(anAnswer(200, "BEGIN:VCALENDAR\nBEGIN:VTODO")), "is no calendar item"));
  EXPECT_TRUE(test::contains(one(anAnswer(500)), "Server error"));
}

TEST(DavTest, aCollectionTellsItsRightsAndWhoItIs) {
  const auto read = [](const std::string& properties) {
    ScriptedClient client({aMultistatus("<d:response><d:href>/joe/list</d:href><d:propstat><d:prop>" + properties +
                                        "</d:prop><d:status>HTTP/1.1 200 OK</d:status></d:propstat></d:response>")});
    DavConnection dav(client);
    return readCollection(dav, collection);
  };
  const std::string type = "<d:resourcetype><d:collection/><c:calendar/></d:resourcetype>";
  const auto right = [](const std::string& name) {
    return "<d:current-user-privilege-set><d:privilege><d:" + name + "/></d:privilege></d:current-user-privilege-set>";
  };
  EXPECT_FALSE(read("<d:resourcetype><d:collection/></d:resourcetype>"));
  EXPECT_TRUE(read(type)->writable && read(type + right("write-content"))->writable);
  EXPECT_FALSE(read(type + right("read"))->writable);
  const auto full =
      read(type +
           "<d:displayname>To do</d:displayname><d:owner><d:href>/joe</d:href></d:owner>"
           "<c:supported-calendar-component-set><c:comp name=\"VTODO\"/></c:supported-calendar-component-set>"
           "<d:creationdate>2026</d:creationdate><d:sync-token>s</d:sync-token>");
  EXPECT_EQ(full->url.path + full->name + full->owner + full->created + full->syncToken, "/joe/list/To do/joe2026s");
  EXPECT_TRUE(full->takes("VTODO") && !full->takes("VEVENT") && read(type)->takes("VEVENT"));
}

TEST(DavTest, discoveryTriesOtherAddressesButNotAfterARefusedPassword) {
  const auto answersTo = [](const std::string& given, std::vector<HttpAnswer> answers) {
    ScriptedClient client(std::move(answers));
    DavConnection dav(client);
    std::string told = test::failureTextOf([&] { discover(dav, urlOf(given)); });
    for (const HttpRequest& request : client.sent) told += " " + request.url.path;
    return told;
  };
  const HttpAnswer page = anAnswer(200, "<html>"), none = anAnswer(404);
  EXPECT_TRUE(answersTo("https://cal.example/web", {page, none}).ends_with(" /web /.well-known/caldav /"));
  EXPECT_TRUE(
      test::contains(answersTo("https://cal.example/web", {page, none}), "https://cal.example/web is no calendar"));
  EXPECT_TRUE(answersTo("https://cal.example", {none, anAnswer(401)}).ends_with("password. /.well-known/caldav /"));
  EXPECT_TRUE(answersTo("https://cal.example", {anAnswer(500)}).ends_with(" /.well-known/caldav"));
}

}  // namespace
}  // namespace tarnel::account
