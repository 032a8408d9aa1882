#include "HttpFixture.h"

namespace tarnel::account {
namespace {

TEST(UrlTest, oneThingHasOneAddressAndWhatIsNoneIsRefused) {
  const std::pair<const char*, const char*> cases[] = {
      {"HTTPS://Calendar.Example:443/joe@x/sp ce+\xC3\xBC%40%7e.ics#part",
       "https://calendar.example/joe%40x/sp%20ce%2B%C3%BC%40~.ics"},
      {"http://[::1]:8080", "http://[::1]:8080/"},
      {"https://a/b/./c/../d/..?x=1", "https://a/b/?x=1"},
      {"https://a/../../b%2fc//d", "https://a/b%2Fc//d"},
      {"https://a/100%", "https://a/100%25"},
      {"https://joe:secret@a/", ""},
      {"https://a:0/", ""},
      {"https://a:99999/", ""},
      {"https://a b/", ""},
      {"https:///path", ""},
      {"https://a/%0d%0aX: y", ""},
      {"https://a/?x\r\nX: y", ""},
      {"ftp://a/", ""},
      {"a/b", ""}};
  for (const auto& [text, normal] : cases) {
    const auto url = parseUrl(text);
    EXPECT_EQ(url ? url->text() : "", normal) << text;
  }
}

TEST(UrlTest, aReferenceIsReadAgainstTheAddressOfItsDocument) {
  const Url from = urlOf("https://cal.example:8443/dav/joe/list/?q");
  const std::pair<const char*, const char*> cases[] = {{"/x/y.ics", "https://cal.example:8443/x/y.ics"},
                                                       {"y%20z.ics", "https://cal.example:8443/dav/joe/list/y%20z.ics"},
                                                       {"../a:b", "https://cal.example:8443/dav/joe/a%3Ab"},
                                                       {"//other/x", "https://other/x"},
                                                       {"http://other/x", "http://other/x"},
                                                       {"https://joe@other/x", ""}};
  for (const auto& [reference, normal] : cases) {
    const auto url = resolveUrl(from, reference);
    EXPECT_EQ(url ? url->text() : "", normal) << reference;
  }
}

TEST(UrlTest, loopbackIsThisMachineAndNoNameThatLooksLikeIt) {
  for (const char* here : {"http://localhost/", "http://127.0.0.1:5232/", "http://127.9.9.9/", "http://[::1]/"})
    EXPECT_TRUE(urlOf(here).isLoopback()) << here;
  for (const char* away : {"http://127.0.0.1.example/", "http://localhost.example/", "http://127.0.0/",
                           "http://10.0.0.1/", "http://127.0.0.999/", "http://[::2]/"})
    EXPECT_FALSE(urlOf(away).isLoopback()) << away;
}

}  // namespace
}  // namespace tarnel::account
