// What libcurl is told of a request before it is sent.

#include <algorithm>

#include "CurlTransfer.h"
#include "Failure.h"

namespace tarnel::account {
namespace {

bool isHeaderText(std::string_view text) {
  return std::none_of(text.begin(), text.end(), [](char c) { return c == '\r' || c == '\n' || c == '\0'; });
}

template <class Value>
void set(CURL* handle, CURLoption option, Value value) {
  if (curl_easy_setopt(handle, option, value) != CURLE_OK)
    throw Failure(failure::automation, "libcurl doesn't take option " + std::to_string(option) + ".");
}

}  // namespace

bool HttpAccount::mayAsk(const Url& other) const {
  const auto& more = settings.moreHosts;
  return other.host == url.host || std::find(more.begin(), more.end(), other.host) != more.end();
}

std::optional<HttpAnswer> CurlTransfer::prepare() {
  if (const std::string reason = refusal(); !reason.empty()) return abandoned(HttpTrouble::refused, reason);
  curl_easy_reset(handle_.get());
  answer_ = {};
  headerBytes_ = bodyBytes_ = 0;
  sent_ = answered_ = headersEnded_ = twice_ = false;
  witness_ = {};
  setAddress();
  setRequest();
  setTrust();
  setCredentials();
  setLimits();
  return {};
}

std::string CurlTransfer::refusal() const {
  const Url& url = request_.url;
  if (!account_.mayAsk(url))
    return "The server refers to another host, " + url.place() +
           ", which doesn't get the password of this account unless it is named as one of the account's hosts.";
  if (url.scheme != "https" && !url.isLoopback())
    return "The address " + url.text() + " has no encryption. Use https; plain http is for this machine alone.";
  if (account_.rejected) return "The server has refused the user or the password; it isn't asked again with the same.";
  const std::string& key = account_.settings.pinnedKey;
  if (!key.empty() && !key.starts_with("sha256//")) return "The agreed key of " + url.place() + " is no fingerprint.";
  for (const HttpHeader& header : request_.headers)
    if (!isHeaderText(header.name + header.value)) return "The header " + header.name + " has a line break in it.";
  return {};
}

void CurlTransfer::setAddress() {
  CURL* handle = handle_.get();
  set(handle, CURLOPT_URL, request_.url.text().c_str());
  set(handle, CURLOPT_PATH_AS_IS, 1L);
  set(handle, CURLOPT_PROTOCOLS_STR, "http,https");
  set(handle, CURLOPT_HTTP_VERSION, static_cast<long>(CURL_HTTP_VERSION_2TLS));
  set(handle, CURLOPT_SUPPRESS_CONNECT_HEADERS, 1L);
  set(handle, CURLOPT_PROXYAUTH, static_cast<long>(CURLAUTH_ANY));
  // What stays on this machine goes through no proxy, which would carry it away in plain text.
  if (request_.url.isLoopback()) set(handle, CURLOPT_NOPROXY, "*");
}

void CurlTransfer::setRequest() {
  CURL* handle = handle_.get();
  if (!request_.body.empty() || request_.method == "PUT") {
    set(handle, CURLOPT_POSTFIELDS, request_.body.c_str());
    set(handle, CURLOPT_POSTFIELDSIZE_LARGE, static_cast<curl_off_t>(request_.body.size()));
  }
  if (request_.method == "HEAD") set(handle, CURLOPT_NOBODY, 1L);
  set(handle, CURLOPT_CUSTOMREQUEST, request_.method.c_str());
  set(handle, CURLOPT_USERAGENT, "Tarnel");
  set(handle, CURLOPT_ACCEPT_ENCODING, "");  // all that libcurl unpacks
  headers_.reset();
  const auto add = [&](const std::string& line) {
    curl_slist* longer = curl_slist_append(headers_.get(), line.c_str());
    if (!longer) throw std::bad_alloc();
    if (!headers_) headers_.reset(longer);
  };
  add("Expect:");  // servers that don't know 100-continue make each request wait for a second
  for (const HttpHeader& header : request_.headers) add(header.name + ": " + header.value);
  set(handle, CURLOPT_HTTPHEADER, headers_.get());
  set(handle, CURLOPT_HEADERFUNCTION, onHeader);
  set(handle, CURLOPT_HEADERDATA, this);
  set(handle, CURLOPT_WRITEFUNCTION, onBody);
  set(handle, CURLOPT_WRITEDATA, this);
  set(handle, CURLOPT_PREREQFUNCTION, onStart);
  set(handle, CURLOPT_PREREQDATA, this);
  set(handle, CURLOPT_PRIVATE, this);
  set(handle, CURLOPT_NOSIGNAL, 1L);
}

void CurlTransfer::setTrust() {
  CURL* handle = handle_.get();
  const HttpSettings& settings = account_.settings;
  const bool pinned = !settings.pinnedKey.empty();
  // A pinned key replaces signature and name: the handshake proves that the server has it.
  set(handle, CURLOPT_SSL_VERIFYPEER, pinned ? 0L : 1L);
  set(handle, CURLOPT_SSL_VERIFYHOST, pinned ? 0L : 2L);
  set(handle, CURLOPT_SSLVERSION, static_cast<long>(CURL_SSLVERSION_TLSv1_2));
  if (pinned) set(handle, CURLOPT_PINNEDPUBLICKEY, settings.pinnedKey.c_str());
  if (!settings.authorities.empty()) {
    set(handle, CURLOPT_CAINFO, settings.authorities.c_str());
    set(handle, CURLOPT_CAPATH, static_cast<const char*>(nullptr));
  }
  if (request_.url.scheme == "https") {
    set(handle, CURLOPT_SSL_CTX_FUNCTION, onTls);
    set(handle, CURLOPT_SSL_CTX_DATA, this);
  }
}

void CurlTransfer::setCredentials() {
  CURL* handle = handle_.get();
  const HttpSettings& settings = account_.settings;
  if (!settings.bearer.empty()) {
    set(handle, CURLOPT_HTTPAUTH, static_cast<long>(CURLAUTH_BEARER));
    set(handle, CURLOPT_XOAUTH2_BEARER, settings.bearer.c_str());
  } else if (!settings.password.empty()) {
    const long either = static_cast<long>(CURLAUTH_BASIC | CURLAUTH_DIGEST);
    set(handle, CURLOPT_HTTPAUTH, account_.scheme != 0 ? account_.scheme : either);
    set(handle, CURLOPT_USERNAME, settings.user.c_str());
    set(handle, CURLOPT_PASSWORD, settings.password.c_str());
  }
}

void CurlTransfer::setLimits() {
  CURL* handle = handle_.get();
  const HttpSettings& settings = account_.settings;
  set(handle, CURLOPT_CONNECTTIMEOUT_MS, static_cast<long>(settings.connecting.count()));
  set(handle, CURLOPT_TIMEOUT_MS, static_cast<long>(settings.whole.count()));
  set(handle, CURLOPT_LOW_SPEED_LIMIT, 1L);
  set(handle, CURLOPT_LOW_SPEED_TIME, static_cast<long>(settings.silence.count()));
}

}  // namespace tarnel::account
