#include "Items.h"

#include <algorithm>
#include <set>

#include "DavBodies.h"
#include "DavFailure.h"

namespace tarnel::account {
namespace {

constexpr std::size_t itemsAtATime = 200;

std::optional<DavItem> itemIn(const DavResponse& response) {
  const XmlElement* data = response.property(xml::calDav, "calendar-data");
  if (!data || data->trimmed().empty()) return {};
  return DavItem{response.url, ETag(response.text(xml::dav, "getetag")), data->text};
}

bool isWhole(std::string_view text) { return text.find("END:VCALENDAR") != std::string_view::npos; }

}  // namespace

MissingItems readItems(DavConnection& dav, const Url& collection, const std::vector<Url>& urls, const TakeItem& take) {
  MissingItems missing;
  for (std::size_t at = 0; at < urls.size(); at += itemsAtATime) {
    std::vector<std::string> paths;
    for (std::size_t i = at; i < std::min(at + itemsAtATime, urls.size()); ++i) paths.push_back(urls[i].path);
    std::set<std::string> open(paths.begin(), paths.end()), absent;
    dav.ask({"REPORT", collection, "1", bodies::multiget(paths)}, [&](DavResponse&& response) {
      const std::string path = response.url.path;
      if (open.count(path) == 0) return;
      if (auto item = itemIn(response)) {
        take(std::move(*item));
        open.erase(path);
        absent.erase(path);
      } else if (response.status == 404 || response.status == 410) {
        absent.insert(path);
      }
    });
    for (std::size_t i = at; i < at + paths.size(); ++i)
      if (open.erase(urls[i].path) > 0)
        (absent.count(urls[i].path) > 0 ? missing.absent : missing.silent).push_back(urls[i]);
  }
  return missing;
}

std::size_t readAllItems(DavConnection& dav, const Url& collection, std::string_view component, const TakeItem& take) {
  std::size_t count = 0;
  dav.ask({"REPORT", collection, "1", bodies::calendarQuery(component)}, [&](DavResponse&& response) {
    if (auto item = itemIn(response)) {
      ++count;
      take(std::move(*item));
    }
  });
  return count;
}

std::optional<DavItem> readItem(DavConnection& dav, const Url& url) {
  const HttpAnswer answer = dav.http().send({"GET", url, {{"Accept", "text/calendar"}}, "", {}});
  if (answer.trouble == HttpTrouble::none && (answer.status == 404 || answer.status == 410)) return {};
  if (answer.trouble != HttpTrouble::none || answer.status != 200) throw DavFailure(answer, conditionsOf(answer.body));
  if (!isWhole(answer.body))
    throw DavFailure(DavFault::unreadable,
                     "What the server " + url.place() + " has at " + url.path + " is no calendar item.");
  return DavItem{url, ETag(answer.header("ETag").value_or("")), answer.body};
}

}  // namespace tarnel::account
