#include "CurlTransfer.h"

#include <algorithm>

#include "Failure.h"

namespace tarnel::account {
namespace {

constexpr std::size_t mostHeaderBytes = 256u << 10;
constexpr std::size_t mostBytesOfRefusal = 64u << 10;  // of an answer that is no 2xx
constexpr int mostRedirects = 5;

bool isRedirect(int status) { return status == 301 || status == 302 || status == 307 || status == 308; }
bool isSuccess(int status) { return status >= 200 && status < 300; }

}  // namespace

CurlTransfer::CurlTransfer(std::size_t nth, HttpRequest request, HttpAccount& account)
    : nth_(nth), request_(std::move(request)), account_(account), handle_(curl_easy_init()) {
  if (!handle_) throw Failure(failure::automation, "libcurl gives no handle.");
}

int CurlTransfer::onStart(void* self, char* serverIp, char*, int, int) {
  auto& transfer = *static_cast<CurlTransfer*>(self);
  // libcurl repeats a request by itself when a kept connection ends before an answer: the server may have acted.
  if (transfer.sent_ && !transfer.answered_ && !transfer.request_.isSafe()) {
    transfer.twice_ = true;
    return CURL_PREREQFUNC_ABORT;
  }
  // A name may lead anywhere; "localhost" has to lead here.
  const std::string_view ip(serverIp);
  if (transfer.request_.url.isLoopback() && !ip.starts_with("127.") && ip != "::1") return CURL_PREREQFUNC_ABORT;
  transfer.sent_ = true;
  transfer.answered_ = false;
  return CURL_PREREQFUNC_OK;
}

CURLcode CurlTransfer::onTls(CURL*, void* context, void* self) {
  static_cast<CurlTransfer*>(self)->witness_.watch(context);
  return CURLE_OK;
}

// Nothing that is thrown may pass through libcurl.
std::size_t CurlTransfer::guarded(void* self, bool (CurlTransfer::*take)(std::string_view), std::string_view part) {
  auto& transfer = *static_cast<CurlTransfer*>(self);
  try {
    if ((transfer.*take)(part)) return part.size();
  } catch (...) {
    transfer.thrown_ = std::current_exception();
  }
  return CURL_WRITEFUNC_ERROR;
}

std::size_t CurlTransfer::onHeader(char* bytes, std::size_t, std::size_t size, void* self) {
  return guarded(self, &CurlTransfer::takeHeader, {bytes, size});
}

std::size_t CurlTransfer::onBody(char* bytes, std::size_t, std::size_t size, void* self) {
  return guarded(self, &CurlTransfer::takeBody, {bytes, size});
}

bool CurlTransfer::takeHeader(std::string_view line) {
  headerBytes_ += line.size();
  if (headerBytes_ > mostHeaderBytes) return false;
  if (line.starts_with("HTTP/")) {  // a new answer: the one before was a challenge, a 1xx or a proxy's
    answer_.headers.clear();
    answered_ = true;
    headersEnded_ = false;
    return true;
  }
  line = line.substr(0, line.find_last_not_of(" \t\r\n") + 1);
  headersEnded_ = line.empty();
  const std::size_t colon = line.find(':');
  if (colon == std::string_view::npos) return true;
  const std::size_t value = std::min(line.find_first_not_of(" \t", colon + 1), line.size());
  answer_.headers.push_back({std::string(line.substr(0, colon)), std::string(line.substr(value))});
  return true;
}

bool CurlTransfer::takeBody(std::string_view part) {
  long status = 0;
  curl_easy_getinfo(handle_.get(), CURLINFO_RESPONSE_CODE, &status);
  answer_.status = static_cast<int>(status);
  bodyBytes_ += part.size();
  if (!isSuccess(answer_.status)) {
    answer_.body.append(part.substr(0, mostBytesOfRefusal - std::min(mostBytesOfRefusal, answer_.body.size())));
    return bodyBytes_ <= mostBytesOfRefusal;
  }
  if (bodyBytes_ > account_.settings.largestBody) {
    answer_.trouble = HttpTrouble::tooLarge;
    return false;
  }
  if (!request_.take) {
    answer_.body.append(part);
    return true;
  }
  if (request_.take(part)) return true;
  answer_.trouble = HttpTrouble::unwanted;
  return false;
}

std::optional<HttpAnswer> CurlTransfer::finish(CURLcode code) {
  long status = 0;
  curl_easy_getinfo(handle_.get(), CURLINFO_RESPONSE_CODE, &status);
  curl_off_t seconds = 0;
  curl_easy_getinfo(handle_.get(), CURLINFO_RETRY_AFTER, &seconds);
  answer_.url = request_.url;
  answer_.status = answered_ && status >= 200 ? static_cast<int>(status) : 0;
  if (seconds > 0) answer_.retryAfter = std::chrono::seconds(seconds);
  // The rest of a refusal's text is of no interest.
  const bool refusalCut = answer_.status >= 300 && bodyBytes_ > mostBytesOfRefusal;
  if (code == CURLE_OK && !headersEnded_) code = CURLE_PARTIAL_FILE;  // libcurl takes that for an empty answer
  if (code != CURLE_OK && !refusalCut) return troubled(code);
  learnScheme();
  if (isRedirect(answer_.status)) return redirected();
  if (answer_.status == 401 && account_.hasSecret()) account_.rejected = true;
  if (isSuccess(answer_.status) || (account_.scheme != 0 && answer_.status != 401)) account_.proven = true;
  return std::move(answer_);
}

void CurlTransfer::learnScheme() {
  long offered = 0;
  curl_easy_getinfo(handle_.get(), CURLINFO_HTTPAUTH_AVAIL, &offered);
  if (account_.settings.password.empty() || offered == 0) return;
  account_.scheme =
      static_cast<long>((offered & static_cast<long>(CURLAUTH_DIGEST)) != 0 ? CURLAUTH_DIGEST : CURLAUTH_BASIC);
}

std::optional<HttpAnswer> CurlTransfer::redirected() {
  const std::string target = answer_.header("Location").value_or("");
  const auto next = target.empty() ? std::nullopt : resolveUrl(request_.url, target);
  const auto refuse = [&](const std::string& why) {
    return abandoned(HttpTrouble::badRedirect, "The server " + request_.url.place() + " sends us on to " + why + ".");
  };
  if (!next) return refuse("an address that is none");
  if (!account_.mayAsk(*next)) return refuse("another host, " + next->place() + "; if it is yours, give its address");
  if (request_.url.scheme == "https" && next->scheme != "https") return refuse("an address without encryption");
  if (++redirects_ > mostRedirects) return refuse("one address after another, " + next->text() + " the last");
  request_.url = *next;
  return {};
}

HttpAnswer CurlTransfer::abandoned(HttpTrouble trouble, const std::string& reason) {
  answer_.trouble = trouble;
  answer_.reason = reason;
  answer_.url = request_.url;
  return std::move(answer_);
}

HttpAnswer CurlTransfer::troubled(CURLcode code) {
  const std::string place = request_.url.place();
  const bool tls = code == CURLE_PEER_FAILED_VERIFICATION || code == CURLE_SSL_PINNEDPUBKEYNOTMATCH ||
                   code == CURLE_SSL_CONNECT_ERROR || code == CURLE_SSL_CACERT_BADFILE;
  if (answer_.trouble == HttpTrouble::unwanted) return abandoned(HttpTrouble::unwanted, "The answer was not wanted.");
  if (answer_.trouble == HttpTrouble::tooLarge || headerBytes_ > mostHeaderBytes)
    return abandoned(HttpTrouble::tooLarge, "The answer of " + place + " is larger than is taken.");
  if (tls && !sent_) {
    answer_.fingerprint = witness_.fingerprint();
    return abandoned(HttpTrouble::untrusted, "The server " + place + " can't be trusted: " + complaint(code) + ".");
  }
  if (sent_)
    return abandoned(HttpTrouble::lost,
                     "The connection to " + place + " ended before the answer was there: " + complaint(code) + ".");
  return abandoned(HttpTrouble::notReached, "The server " + place + " can't be reached: " + complaint(code) + ".");
}

// Never libcurl's own error buffer, which may quote what was sent.
std::string CurlTransfer::complaint(CURLcode code) const {
  if (twice_) return "it was closed while the request was on its way";
  if (code == CURLE_ABORTED_BY_CALLBACK) return "its name leads to another machine";
  long proxyStatus = 0;
  curl_easy_getinfo(handle_.get(), CURLINFO_HTTP_CONNECTCODE, &proxyStatus);
  if (!sent_ && proxyStatus >= 300) return "the proxy answered " + std::to_string(proxyStatus);
  if (code == CURLE_SSL_PINNEDPUBKEYNOTMATCH) return "its key is another one than the key that was agreed to";
  if (code != CURLE_PEER_FAILED_VERIFICATION) return curl_easy_strerror(code);
  return witness_.complaint().empty() ? "its certificate is for another host" : witness_.complaint();
}

}  // namespace tarnel::account
