#include "Url.h"

#include <algorithm>
#include <vector>

#include "Conversions.h"

namespace tarnel::account {
namespace {

constexpr int lastPort = 65535;

bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isAlphanumeric(char c) { return isDigit(c) || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
bool isControl(char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }

// One way to write a path: servers list `a@b`, `a%40b` and `a%40B` for one item.
std::optional<std::string> normalSegment(std::string_view segment) {
  constexpr std::string_view unreserved = "-._~", digits = "0123456789ABCDEF";
  std::string normal;
  for (std::size_t i = 0; i < segment.size(); ++i) {
    char c = segment[i];
    if (c == '%' && i + 2 < segment.size()) {
      if (const auto byte = bytesOfHex(segment.substr(i + 1, 2)); byte && byte->size() == 1) {
        c = static_cast<char>(byte->front());
        i += 2;
      }
    }
    if (isControl(c)) return {};
    if (isAlphanumeric(c) || unreserved.find(c) != std::string_view::npos) {
      normal += c;
    } else {
      const auto byte = static_cast<unsigned char>(c);
      ((normal += '%') += digits[byte >> 4]) += digits[byte & 0xF];
    }
  }
  return normal;
}

// Its segments normal, "." and ".." resolved (RFC 3986, 5.2.4).
std::optional<std::string> normalPath(std::string_view path) {
  std::vector<std::string> segments;
  bool folder = true;
  for (std::size_t at = 0; at < path.size();) {
    const std::size_t end = std::min(path.find('/', at + 1), path.size());
    const auto segment = normalSegment(path.substr(at + 1, end - at - 1));
    if (!segment) return {};
    folder = *segment == "." || *segment == "..";
    if (*segment == ".." && !segments.empty()) segments.pop_back();
    if (!folder) segments.push_back(*segment);
    at = end;
  }
  std::string normal;
  for (const std::string& segment : segments) normal += "/" + segment;
  return folder ? normal + "/" : normal;
}

bool isHost(std::string_view host) {
  if (host.starts_with('['))
    return host.size() > 2 && host.ends_with(']') &&
           host.substr(1, host.size() - 2).find_first_not_of("0123456789abcdef:.") == std::string_view::npos;
  return !host.empty() && std::all_of(host.begin(), host.end(), [](char c) {
    return isAlphanumeric(c) || c == '-' || c == '.' || c == '_' || static_cast<unsigned char>(c) >= 0x80;
  });
}

int standardPort(const std::string& scheme) { return scheme == "https" ? 443 : 80; }

// "host" or "host:port" into `url`.
bool readPlace(std::string_view place, Url& url) {
  const std::size_t bracket = place.find(']');
  const std::size_t colon = place.find(':', bracket == std::string_view::npos ? 0 : bracket);
  for (const char c : place.substr(0, colon)) url.host += c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
  url.port = standardPort(url.scheme);
  if (colon != std::string_view::npos && colon + 1 < place.size()) {
    const std::string_view digits = place.substr(colon + 1);
    if (digits.size() > 5 || !std::all_of(digits.begin(), digits.end(), isDigit)) return false;
    url.port = std::stoi(std::string(digits));
  }
  return isHost(url.host) && url.port > 0 && url.port <= lastPort;
}

// Path, query and fragment into `url`.
bool readPath(std::string_view text, Url& url) {
  text = text.substr(0, text.find('#'));
  const std::size_t query = std::min(text.find('?'), text.size());
  const auto path = normalPath(text.substr(0, query));
  if (!path) return false;
  url.path = *path;
  url.query = text.substr(query);
  return std::none_of(url.query.begin(), url.query.end(), [](char c) { return isControl(c) || c == ' '; });
}

std::optional<Url> parseAfterScheme(std::string scheme, std::string_view rest) {
  Url url;
  url.scheme = std::move(scheme);
  const std::size_t end = std::min(rest.find_first_of("/?#"), rest.size());
  if (!readPlace(rest.substr(0, end), url)) return {};
  const std::string path = rest.substr(end).starts_with('/') ? "" : "/";
  return readPath(path + std::string(rest.substr(end)), url) ? std::optional(url) : std::nullopt;
}

}  // namespace

std::string Url::place() const { return port == standardPort(scheme) ? host : host + ":" + std::to_string(port); }

std::string Url::text() const { return scheme + "://" + place() + path + query; }

bool Url::isLoopback() const {
  if (host == "localhost" || host == "[::1]") return true;
  // 127.x.y.z to the letter; 127.0.0.1.example is a name like any other.
  int numbers = 0;
  for (std::size_t at = 0; at <= host.size(); ++numbers) {
    const std::size_t end = std::min(host.find('.', at), host.size());
    const std::string number = host.substr(at, end - at);
    if (number.empty() || number.size() > 3 || !std::all_of(number.begin(), number.end(), isDigit)) return false;
    if (std::stoi(number) > 255 || (at == 0 && number != "127")) return false;
    at = end + 1;
  }
  return numbers == 4;
}

std::optional<Url> parseUrl(std::string_view text) {
  const std::size_t end = text.find("://");
  if (end == std::string_view::npos) return {};
  std::string scheme = toUpper(text.substr(0, end));
  if (scheme != "HTTP" && scheme != "HTTPS") return {};
  return parseAfterScheme(scheme == "HTTP" ? "http" : "https", text.substr(end + 3));
}

std::optional<Url> resolveUrl(const Url& from, std::string_view reference) {
  if (reference.starts_with("//")) return parseAfterScheme(from.scheme, reference.substr(2));
  const std::size_t colon = reference.find(':'), slash = reference.find('/');
  if (colon != std::string_view::npos && colon < slash && reference.substr(colon).starts_with("://"))
    return parseUrl(reference);
  Url url = from;
  const std::string folder = from.path.substr(0, from.path.rfind('/') + 1);
  const std::string path = reference.starts_with('/') ? "" : reference.empty() ? from.path : folder;
  return readPath(path + std::string(reference), url) ? std::optional(url) : std::nullopt;
}

}  // namespace tarnel::account
