#include <condition_variable>
#include <stop_token>

#include "FailureOf.h"
#include "HttpFixture.h"

namespace tarnel::account {
namespace {

using test::Heard;
using test::httpAnswer;
using test::LoopbackServer;
using test::Wire;

struct HttpTest : testing::Test {
  CurlClient clientOf(const LoopbackServer& server) { return CurlClient(urlOf(server.url()), settings_); }
  HttpAnswer send(const LoopbackServer& server, HttpRequest request) {
    return clientOf(server).send(std::move(request));
  }
  void logIn() {
    settings_.user = "joe";
    settings_.password = "p\xC3\xA4ss";
  }

  HttpSettings settings_;
};

// "joe:päss", as Basic sends it.
constexpr const char* basic = "Basic am9lOnDDpHNz";
const std::string challenge = httpAnswer(401, "who?", "WWW-Authenticate: Basic realm=\"x\"\r\n");

TEST_F(HttpTest, aRequestArrivesAsItIsAndItsAnswerComesBack) {
  const LoopbackServer server({httpAnswer(207, "<x/>", "ETag:  \"1\"\r\n")});
  HttpRequest request = aRequest("PROPFIND", server.url("/a%20b/"), std::string("b\0dy", 4));
  request.headers = {{"Depth", "1"}};
  const HttpAnswer answer = send(server, request);
  EXPECT_EQ(described(answer) + " " + *answer.header("etag"), "207  <x/> \"1\"");
  const Heard heard = server.heard().at(0);
  EXPECT_EQ(server.log() + heard.header("depth") + heard.body, "PROPFIND /a%20b/\n1" + request.body);
}

TEST_F(HttpTest, whatComesIsToldForWhatItIs) {
  const std::string gzipped("\x1f\x8b\x08\0\0\0\0\0\0\xff\xcb\x48\xcd\xc9\xc9\x07\0\x86\xa6\x10\x36\x05\0\0\0", 25);
  const std::string zip = "Content-Encoding: gzip\r\n";
  const std::string interim = "HTTP/1.1 102 Processing\r\n\r\n";
  std::string manyHeaders;
  for (int i = 0; i < 400; ++i) manyHeaders += "X: " + std::string(1000, 'x') + "\r\n";
  struct {
    std::string bytes, told;
  } const cases[] = {{"", "0 lost "},
                     {"HTTP/1.1 200 OK\r\nContent-Length: 9\r\n\r\nhalf", "200 lost half"},
                     {"HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n4\r\nhalf", "200 lost half"},
                     {"HTTP/1.1 200 OK\r\nContent-Le", "200 lost "},
                     {interim, "0 lost "},
                     {interim + interim + httpAnswer(201, "made"), "201  made"},
                     {"SSH-2.0-x\r\n\r\n", "0 lost "},
                     {httpAnswer(200, gzipped, zip), "200  hello"},
                     {httpAnswer(200, "no gzip", zip), "200 lost "},
                     {httpAnswer(403, "no"), "403  no"},
                     {"HTTP/1.1 200 OK\r\n" + manyHeaders, "200 tooLarge "}};
  for (const auto& [bytes, told] : cases) {
    const LoopbackServer server([&answer = bytes](const Heard&, Wire& wire) { return !wire.write(answer); });
    EXPECT_EQ(described(send(server, aRequest("PUT", server.url(), "x"))), told) << bytes.substr(0, 200);
    EXPECT_EQ(server.heard().size(), 1u) << "sent once";
  }
}

TEST_F(HttpTest, retryAfterIsReadInSecondsAndAsADate) {
  const LoopbackServer server({httpAnswer(429, "", "Retry-After: 120\r\n"),
                               httpAnswer(503, "", "Retry-After: Fri, 01 Jan 2100 00:00:00 GMT\r\n"), httpAnswer(500)});
  CurlClient client = clientOf(server);
  const auto wait = [&] { return client.send(aRequest("GET", server.url())).retryAfter; };
  EXPECT_EQ(wait(), std::chrono::seconds(120));
  EXPECT_GT(wait(), std::chrono::hours(24 * 365));
  EXPECT_EQ(wait(), std::nullopt);
}

TEST_F(HttpTest, anEndlessAnswerEndsAtTheLimitAndARefusalKeepsItsStatus) {
  settings_.largestBody = 100'000;
  for (const auto& [status, told] : {std::pair{"200", "200 tooLarge"}, {"500", "500 "}}) {
    const LoopbackServer server([&start = status](const Heard&, Wire& wire) {
      bool listens = wire.write("HTTP/1.1 " + std::string(start) + " x\r\n\r\n");
      while (listens) listens = wire.write(std::string(10'000, 'x'));
      return false;
    });
    EXPECT_TRUE(described(send(server, aRequest("GET", server.url()))).starts_with(told)) << told;
  }
}

TEST_F(HttpTest, theTakerGetsASuccessAloneAndMayEndItOrThrow) {
  const LoopbackServer server({httpAnswer(404, "page"), httpAnswer(200, "text")});
  CurlClient client = clientOf(server);
  std::string taken;
  bool more = true;
  HttpRequest request = aRequest("REPORT", server.url());
  request.take = [&](std::string_view part) {
    taken += part;
    return more;
  };
  EXPECT_EQ(described(client.send(request)) + "|" + taken, "404  page|");
  EXPECT_EQ(described(client.send(request)) + "|" + taken, "200  |text");
  more = false;
  EXPECT_EQ(described(client.send(request)), "200 unwanted ");
  request.take = [](std::string_view) -> bool { throw Failure(7, "full"); };
  EXPECT_EQ(test::failureTextOf([&] { client.send(request); }), "7: full");
  EXPECT_EQ(client.send(aRequest("GET", server.url())).status, 200) << "the client is of use again";
}

TEST_F(HttpTest, redirectsStayWithinTheHostAndKeepTheRequest) {
  const auto to = [](const std::string& target, int status = 301) {
    return httpAnswer(status, "", "Location: " + target + "\r\n");
  };
  const LoopbackServer server({to("/there/"), to("again", 308), httpAnswer(207, "ok")});
  const HttpAnswer answer = send(server, aRequest("PROPFIND", server.url(), "query"));
  EXPECT_EQ(described(answer) + " " + answer.url.path, "207  ok /there/again");
  EXPECT_EQ(server.log(), "PROPFIND /\nPROPFIND /there/\nPROPFIND /there/again\n");
  EXPECT_EQ(server.heard().at(2).body, "query");

  for (const auto& [target, why] : {std::pair{"http://elsewhere.example/x", "another host, elsewhere.example"},
                                    {"/", "one address after another"},
                                    {"//joe:secret@127.0.0.1/", "an address that is none"},
                                    {"", "an address that is none"}}) {
    const LoopbackServer sends({to(target)});
    const HttpAnswer refused = send(sends, aRequest("GET", sends.url()));
    EXPECT_EQ(described(refused), "301 badRedirect ") << target;
    EXPECT_TRUE(test::contains(refused.reason, why));
    EXPECT_LE(sends.heard().size(), 6u);
  }
}

TEST_F(HttpTest, whatMustNotBeSentIsNotSent) {
  const LoopbackServer server({httpAnswer(200)});
  HttpRequest split = aRequest("PUT", server.url());
  split.headers = {{"If-Match", "\"1\"\r\nX-Evil: 1"}};
  CurlClient far(urlOf("http://calendar.example/"), settings_);
  EXPECT_TRUE(test::contains(far.send(aRequest("GET", "http://calendar.example/")).reason, "no encryption. Use https"));
  EXPECT_TRUE(test::contains(far.send(aRequest("GET", server.url())).reason, "refers to another host, 127.0.0.1"));
  EXPECT_TRUE(test::contains(send(server, split).reason, "If-Match has a line break"));
  EXPECT_EQ(server.connections(), 0);
}

TEST_F(HttpTest, aServerThatIsNotThereOrSilentIsToldApart) {
  settings_.whole = std::chrono::milliseconds(200);
  const LoopbackServer silent([](const Heard&, Wire& wire) { return wire.awaitEnd(), false; });
  EXPECT_EQ(described(send(silent, aRequest("PUT", silent.url()))), "0 lost ");
  std::string gone;
  {
    const LoopbackServer ended({httpAnswer(200)});
    gone = ended.url();
  }
  CurlClient client(urlOf(gone), settings_);
  EXPECT_EQ(described(client.send(aRequest("PUT", gone))), "0 notReached ");
}

TEST_F(HttpTest, thePasswordIsGivenWhenAskedForAndThenAtOnce) {
  logIn();
  const LoopbackServer server({challenge, httpAnswer(200)});
  CurlClient client = clientOf(server);
  for (int i = 0; i < 2; ++i) EXPECT_EQ(described(client.send(aRequest("PUT", server.url(), "body"))), "200  ");
  std::string sent;
  for (const Heard& heard : server.heard()) sent += heard.header("authorization") + heard.body + "|";
  EXPECT_EQ(sent, std::string("body|") + basic + "body|" + basic + "body|");
}

TEST_F(HttpTest, aRefusedPasswordIsTriedOnceHoweverManyRequestsWait) {
  logIn();
  const LoopbackServer server({challenge});
  CurlClient client = clientOf(server);
  int left = 5;
  std::string told;
  client.exchange(
      [&]() -> std::optional<HttpRequest> {
        if (left-- == 0) return {};
        return aRequest("GET", server.url());
      },
      [&](std::size_t, const HttpAnswer& answer) {
        told += std::to_string(answer.status) + nameOf(answer.trouble) + " ";
      },
      8);
  EXPECT_EQ(told, "401 0refused 0refused 0refused 0refused ");
  EXPECT_EQ(server.heard().size(), 2u) << "the question for a password, and the answer to it";
}

TEST_F(HttpTest, digestIsTakenBeforeBasicAndATokenIsCarried) {
  logIn();
  const LoopbackServer server(
      {httpAnswer(401, "",
                  "WWW-Authenticate: Basic realm=\"x\"\r\nWWW-Authenticate: Digest realm=\"x\", "
                  "nonce=\"n\", qop=\"auth\", algorithm=SHA-256\r\n"),
       httpAnswer(200)});
  send(server, aRequest("REPORT", server.url(), "x"));
  EXPECT_TRUE(server.heard().back().header("authorization").starts_with("Digest username=\"joe\""));
  settings_.bearer = "token-1";
  send(server, aRequest("GET", server.url()));
  EXPECT_EQ(server.heard().back().header("authorization"), "Bearer token-1");
}

TEST_F(HttpTest, whatChangesSomethingIsNeverSentTwice) {
  for (const auto& [method, told, times] :
       {std::tuple{"PUT", "0 lost ", 1}, {"DELETE", "0 lost ", 1}, {"REPORT", "200  ", 2}}) {
    // The second request finds the kept connection closed once it is on its way.
    std::atomic<int> count = 0;
    const LoopbackServer server([&](const Heard&, Wire& wire) { return ++count != 2 && wire.write(httpAnswer(200)); });
    CurlClient client = clientOf(server);
    client.send(aRequest("GET", server.url()));
    EXPECT_EQ(described(client.send(aRequest(method, server.url()))), told) << method;
    EXPECT_EQ(count, 1 + times) << method;
  }
}

TEST_F(HttpTest, requestsRunSideBySideOnKeptConnections) {
  std::mutex mutex;
  std::condition_variable all;
  int present = 0;
  // No answer before three have come.
  const LoopbackServer server([&](const Heard&, Wire& wire) {
    std::unique_lock lock(mutex);
    ++present;
    all.notify_all();
    const bool together = all.wait_for(lock, std::chrono::seconds(5), [&] { return present >= 3; });
    return wire.write(httpAnswer(together ? 200 : 500));
  });
  CurlClient client = clientOf(server);
  int left = 9, good = 0;
  client.exchange(
      [&]() -> std::optional<HttpRequest> {
        if (left-- == 0) return {};
        return aRequest("PUT", server.url("/" + std::to_string(left)), "x");
      },
      [&](std::size_t, const HttpAnswer& answer) { good += answer.status == 200; }, 3);
  EXPECT_EQ(good, 9);
  EXPECT_EQ(server.connections(), 3);
}

TEST_F(HttpTest, stoppingEndsWhatIsOnItsWay) {
  std::stop_source stop;
  settings_.stop = stop.get_token();
  const LoopbackServer server([&](const Heard&, Wire& wire) {
    stop.request_stop();
    return wire.awaitEnd(), false;
  });
  EXPECT_EQ(described(send(server, aRequest("PUT", server.url()))), "0 stopped ");
}

TEST_F(HttpTest, aProxyOfTheEnvironmentIsUsedButNotForThisMachine) {
  const LoopbackServer proxy({httpAnswer(403)}), server({httpAnswer(200)});
  setenv("https_proxy", proxy.url().c_str(), 1);
  setenv("http_proxy", proxy.url().c_str(), 1);
  CurlClient far(urlOf("https://calendar.example/"), settings_);
  const HttpAnswer answer = far.send(aRequest("GET", "https://calendar.example/"));
  EXPECT_EQ(send(server, aRequest("GET", server.url())).status, 200);
  unsetenv("https_proxy");
  unsetenv("http_proxy");
  EXPECT_EQ(proxy.log(), "CONNECT calendar.example:443\n");
  EXPECT_EQ(answer.reason, "The server calendar.example can't be reached: the proxy answered 403.");
}

}  // namespace
}  // namespace tarnel::account
