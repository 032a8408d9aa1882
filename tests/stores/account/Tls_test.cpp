#include "FailureOf.h"
#include "HttpFixture.h"
#include "ServerProcess.h"
#include "TempFolder.h"

namespace tarnel::account {
namespace {

struct TlsTest : testing::Test {
  TlsTest() {
    for (const auto& [name, subject] : {std::pair{"own", "IP:127.0.0.1"}, {"other", "DNS:other.example"}})
      test::runProgram({"openssl", "req", "-x509", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:P-256", "-nodes",
                        "-subj", "/CN=x", "-addext", std::string("subjectAltName=") + subject, "-keyout",
                        folder_ / (std::string(name) + ".key"), "-out", folder_ / (std::string(name) + ".pem")});
    folder_.write("page", "HTTP/1.1 200 OK\r\nContent-Length: 2\r\n\r\nok");
    folder_.write("down", "HTTP/1.1 301 x\r\nLocation: http://127.0.0.1/\r\nContent-Length: 0\r\n\r\n");
  }

  // What a server with that certificate has to say.
  HttpAnswer ask(const std::string& certificate, const std::string& page = "page") {
    const int port = test::freePort();
    const test::ServerProcess server = served("openssl s_server -HTTP -accept 127.0.0.1:" + std::to_string(port) +
                                                  " -cert " + certificate + ".pem -key " + certificate + ".key",
                                              "ACCEPT");
    const std::string url = "https://127.0.0.1:" + std::to_string(port) + "/" + page;
    return CurlClient(urlOf(url), settings_).send(aRequest("GET", url));
  }

  // Serves the folder.
  test::ServerProcess served(const std::string& command, const std::string& ready) const {
    return test::ServerProcess({"sh", "-c", "cd '" + folder_.path().string() + "' && exec " + command}, ready);
  }

  test::TempFolder folder_;
  HttpSettings settings_;
};

TEST_F(TlsTest, aCertificateIsTrustedByWhoSignedItAndForItsHostAlone) {
  EXPECT_TRUE(test::contains(ask("own").reason, "can't be trusted: self-signed certificate."));
  settings_.authorities = folder_ / "own.pem";
  EXPECT_EQ(described(ask("own")), "200  ok");
  const HttpAnswer downhill = ask("own", "down");
  EXPECT_EQ(nameOf(downhill.trouble), "badRedirect");
  EXPECT_TRUE(test::contains(downhill.reason, "an address without encryption"));
  settings_.authorities = folder_ / "other.pem";
  EXPECT_TRUE(test::contains(ask("other").reason, "can't be trusted: its certificate is for another host."));
}

TEST_F(TlsTest, aKeyThatIsNotTrustedIsToldAndPinnedItIsTheOnlyOne) {
  const HttpAnswer untrusted = ask("own");
  EXPECT_EQ(described(untrusted), "0 untrusted ");
  EXPECT_EQ(untrusted.fingerprint.size(), 8u + 44u);
  settings_.pinnedKey = untrusted.fingerprint;
  EXPECT_EQ(described(ask("own")), "200  ok");
  const HttpAnswer changed = ask("other");
  EXPECT_EQ(nameOf(changed.trouble), "untrusted");
  EXPECT_TRUE(test::contains(changed.reason, "another one than the key that was agreed to"));
  EXPECT_NE(changed.fingerprint, untrusted.fingerprint);
  settings_.authorities = folder_ / "other.pem";
  EXPECT_EQ(nameOf(ask("other").trouble), "untrusted") << "a good signature doesn't replace the pinned key";
}

TEST_F(TlsTest, largeAnswersComeSideBySideOverHttp2) {
  const std::string port = std::to_string(test::freePort()), url = "https://127.0.0.1:" + port + "/large";
  folder_.write("large", std::string(100'000, 'x'));
  const auto server = served("nghttpd --address=127.0.0.1 -v " + port + " own.key own.pem -d .", "listen");
  settings_.authorities = folder_ / "own.pem";
  settings_.whole = std::chrono::seconds(10);
  CurlClient client(urlOf(url), settings_);
  client.send(aRequest("GET", url));  // the connection is kept
  int left = 100, good = 0;
  client.exchange(
      [&]() -> std::optional<HttpRequest> {
        if (left-- == 0) return {};
        return aRequest("GET", url);
      },
      [&](std::size_t, const HttpAnswer& answer) { good += answer.body.size() == 100'000; }, 8);
  EXPECT_EQ(good, 100);
}

}  // namespace
}  // namespace tarnel::account
