#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tarnel::account {

// An absolute http or https address, taken apart. Its text never has a user or a password in it, and two addresses of
// one thing have one text.
struct Url {
  std::string scheme;  // "http" or "https"
  std::string host;    // lower-case; an IPv6 address in its brackets
  int port = 0;        // the scheme's own when the text named none
  std::string path;    // begins with "/"; each byte but letters, digits, "-._~" and "/" percent-encoded
  std::string query;   // empty, or begins with "?"

  std::string text() const;
  // "host", or "host:port" when the port is not the scheme's own.
  std::string place() const;
  // Whether traffic to it stays on this machine.
  bool isLoopback() const;

  bool operator==(const Url&) const = default;
};

// None for what is no http(s) address, has a user or a password in it, or a character that no address may have.
std::optional<Url> parseUrl(std::string_view text);

// What a server's reference means in a document that came from `from`: a path, an address without a scheme, or a whole
// one. None as above.
std::optional<Url> resolveUrl(const Url& from, std::string_view reference);

}  // namespace tarnel::account
