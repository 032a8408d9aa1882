#include "DavConnection.h"

#include "DavFailure.h"
#include "XmlReader.h"

namespace tarnel::account {
namespace {

// "HTTP/1.1 404 Not Found"; 0 for what is none.
int statusOf(std::string_view line) {
  const std::size_t blank = line.find(' ');
  if (!line.starts_with("HTTP/") || blank == std::string_view::npos) return 0;
  int status = 0;
  for (const char c : line.substr(blank + 1, 3)) {
    if (c < '0' || c > '9') return 0;
    status = status * 10 + (c - '0');
  }
  return status;
}

void takePropertyStatus(XmlElement& propstat, DavResponse& response) {
  const XmlElement* status = propstat.child(xml::dav, "status");
  const int number = status ? statusOf(status->trimmed()) : 200;
  if (number < 200 || number >= 300) return;
  for (XmlElement& part : propstat.children)
    if (part.is(xml::dav, "prop"))
      for (XmlElement& property : part.children) response.properties.push_back(std::move(property));
}

[[noreturn]] void failUnreadable(const Url& url, const std::string& why) {
  throw DavFailure(DavFault::unreadable, "The answer of the server " + url.place() + " can't be used: " + why + ".");
}

void requireWhole(XmlFault fault, const HttpAnswer& answer) {
  if (fault == XmlFault::notXml)
    throw DavFailure(DavFault::noCalendar, "What answers at " + answer.url.text() +
                                               " sends a page instead of calendar data. Look at the address.");
  if (fault == XmlFault::cut) throw DavFailure(DavFault::lost, "The answer of " + answer.url.place() + " breaks off.");
  if (fault == XmlFault::tooMuch) failUnreadable(answer.url, "it is larger or deeper than any honest one");
}

// Some servers tell inside of a 207 that there is nothing at the address that was asked.
void requireThere(const DavResponse& response) {
  if (response.status < 400 || response.status == moreToList) return;
  HttpAnswer answer;
  answer.status = response.status;
  answer.url = response.url;
  throw DavFailure(answer, response.conditions);
}

}  // namespace

const XmlElement* DavResponse::property(std::string_view space, std::string_view name) const {
  for (const XmlElement& element : properties)
    if (element.is(space, name)) return &element;
  return nullptr;
}

std::string DavResponse::text(std::string_view space, std::string_view name) const {
  const XmlElement* found = property(space, name);
  return found ? std::string(found->trimmed()) : std::string();
}

std::vector<DavResponse> responsesIn(XmlElement&& element, const Url& from) {
  DavResponse common;
  std::vector<Url> urls;
  for (XmlElement& part : element.children) {
    if (part.is(xml::dav, "href")) {
      const auto url = resolveUrl(from, part.trimmed());
      if (!url) failUnreadable(from, "it names an address that is none");
      if (url->host != from.host) failUnreadable(from, "it names items of another host, " + url->place());
      urls.push_back(*url);
      // A server that is reached through a proxy may not know by which port and scheme it is reached.
      urls.back().scheme = from.scheme;
      urls.back().port = from.port;
    } else if (part.is(xml::dav, "status")) {
      common.status = statusOf(part.trimmed());
    } else if (part.is(xml::dav, "propstat")) {
      takePropertyStatus(part, common);
    } else if (part.is(xml::dav, "error")) {
      for (const XmlElement& condition : part.children) common.conditions.push_back(condition.name);
    }
  }
  if (urls.empty()) failUnreadable(from, "it tells of something without an address");
  std::vector<DavResponse> responses(urls.size(), common);
  for (std::size_t i = 0; i < urls.size(); ++i) responses[i].url = urls[i];
  return responses;
}

DavConnection::End DavConnection::ask(const DavQuery& query, const std::function<void(DavResponse&&)>& take) {
  End end;
  XmlReader reader(xml::dav, "multistatus", [&](XmlElement&& element) {
    if (element.is(xml::dav, "sync-token")) end.syncToken = element.trimmed();
    if (!element.is(xml::dav, "response")) return;
    for (DavResponse& response : responsesIn(std::move(element), query.url)) {
      ++end.count;
      if (response.url == query.url) requireThere(response);
      take(std::move(response));
    }
  });
  HttpRequest request{query.method, query.url, {}, query.body, {}};
  request.headers = {{"Depth", query.depth}, {"Content-Type", "application/xml; charset=utf-8"}};
  request.take = [&](std::string_view part) { return reader.feed(part); };
  HttpAnswer answer = http_.send(std::move(request));
  end.url = answer.url;
  if (answer.trouble == HttpTrouble::unwanted) answer.trouble = HttpTrouble::none;  // the reader knows why
  if (answer.status != 207 || answer.trouble != HttpTrouble::none) throw DavFailure(answer, conditionsOf(answer.body));
  // A server that ends in the middle may close the connection cleanly, and so does a proxy.
  requireWhole(reader.end(), answer);
  return end;
}

DavResponse DavConnection::askOne(const Url& url, const std::string& body) {
  std::vector<DavResponse> all;
  const End end =
      ask({"PROPFIND", url, "0", body}, [&](DavResponse&& response) { all.push_back(std::move(response)); });
  if (all.size() != 1)
    failUnreadable(url, "it tells of " + std::to_string(all.size()) + " things where one was asked for");
  all.front().url = end.url;
  requireThere(all.front());
  return std::move(all.front());
}

}  // namespace tarnel::account
