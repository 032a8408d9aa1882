#include "Writes.h"

#include <algorithm>
#include <map>

#include "DavFailure.h"
#include "XmlReader.h"

namespace tarnel::account {
namespace {

// What a 207 says: the worst status inside. None when it isn't whole.
struct Inside {
  int status = 0;
  std::vector<std::string> conditions;
};
std::optional<Inside> insideOf(const HttpAnswer& answer) {
  Inside inside;
  bool any = false;
  XmlReader reader(xml::dav, "multistatus", [&](XmlElement&& element) {
    if (!element.is(xml::dav, "response")) return;
    for (const DavResponse& response : responsesIn(std::move(element), answer.url)) {
      any = true;
      if (response.status <= inside.status) continue;
      inside.status = response.status;
      inside.conditions = response.conditions;
    }
  });
  try {
    if (!reader.feed(answer.body) || reader.end() != XmlFault::none || !any) return {};
  } catch (const DavFailure&) {
    return {};
  }
  return inside;
}

DavVerdict verdictOf(DavWrite::Kind kind, int status) {
  static const std::map<int, DavVerdict> known = {{401, DavVerdict::password},    {404, DavVerdict::absent},
                                                  {405, DavVerdict::unsupported}, {410, DavVerdict::absent},
                                                  {412, DavVerdict::look},        {429, DavVerdict::busy},
                                                  {501, DavVerdict::unsupported}, {507, DavVerdict::refused}};
  // A server that can't move between collections calls it a conflict.
  if (kind == DavWrite::Kind::move && status == 409) return DavVerdict::unsupported;
  const auto found = known.find(status);
  if (found != known.end()) return found->second;
  if (status >= 200 && status < 300) return DavVerdict::done;
  return status >= 300 && status < 500 ? DavVerdict::refused : DavVerdict::unknown;
}

DavVerdict verdictOf(HttpTrouble trouble) {
  const bool kept =
      trouble == HttpTrouble::refused || trouble == HttpTrouble::notReached || trouble == HttpTrouble::untrusted;
  return kept ? DavVerdict::notSent : trouble == HttpTrouble::badRedirect ? DavVerdict::refused : DavVerdict::unknown;
}

std::string sentenceFor(const DavWritten& written, const HttpAnswer& answer) {
  if (written.verdict == DavVerdict::done) return {};
  if (answer.trouble != HttpTrouble::none) return answer.reason;
  std::string text =
      "The server " + answer.url.place() + " answered " + statusText(written.status) + " for " + answer.url.path;
  for (const std::string& condition : written.conditions) text += ", " + condition;
  return text + ".";
}

}  // namespace

HttpRequest DavWrite::request() const {
  static const std::map<Kind, const char*> methods = {{Kind::create, "PUT"},
                                                      {Kind::update, "PUT"},
                                                      {Kind::remove, "DELETE"},
                                                      {Kind::move, "MOVE"},
                                                      {Kind::makeCalendar, "MKCALENDAR"}};
  HttpRequest request{methods.at(kind), url, {}, body, {}};
  if (kind == Kind::create) request.headers.push_back({"If-None-Match", "*"});
  if (kind == Kind::create || kind == Kind::update)
    request.headers.push_back({"Content-Type", "text/calendar; charset=utf-8"});
  else if (kind == Kind::makeCalendar)
    request.headers.push_back({"Content-Type", "application/xml; charset=utf-8"});
  else if (kind == Kind::move)
    request.headers.insert(request.headers.end(), {{"Destination", destination.text()}, {"Overwrite", "F"}});
  if (!etag.isNone()) request.headers.push_back({"If-Match", etag.text()});
  return request;
}

DavWritten readWritten(const DavWrite& write, const HttpAnswer& answer) {
  DavWritten written;
  written.status = answer.status;
  written.retryAfter = answer.retryAfter;
  written.fingerprint = answer.fingerprint;
  written.conditions = conditionsOf(answer.body);
  written.verdict = verdictOf(write.kind, answer.status);
  if (answer.trouble != HttpTrouble::none) {
    written.verdict = verdictOf(answer.trouble);
  } else if (answer.status == 207) {
    const auto inside = insideOf(answer);
    if (inside && inside->status != 0) written.status = inside->status;
    if (inside) written.conditions = inside->conditions;
    written.verdict = inside ? verdictOf(write.kind, written.status) : DavVerdict::unknown;
  }
  if (written.verdict == DavVerdict::done) written.etag = ETag(answer.header("ETag").value_or(""));
  written.text = sentenceFor(written, answer);
  return written;
}

void writeAll(HttpClient& http, const NextWrite& next, const WriteDone& done, int parallel) {
  std::map<std::size_t, DavWrite> open;
  std::size_t count = 0;
  http.exchange(
      [&]() -> std::optional<HttpRequest> {
        std::optional<DavWrite> write = next();
        if (!write) return {};
        HttpRequest request = write->request();
        write->body.clear();  // the request has it
        open.emplace(count++, std::move(*write));
        return request;
      },
      [&](std::size_t nth, const HttpAnswer& answer) {
        const DavWrite write = std::move(open.extract(nth).mapped());
        done(nth, readWritten(write, answer));
      },
      parallel);
}

DavWritten writeOne(HttpClient& http, const DavWrite& write) { return readWritten(write, http.send(write.request())); }

}  // namespace tarnel::account
