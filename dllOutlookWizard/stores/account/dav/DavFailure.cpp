#include "DavFailure.h"

#include <algorithm>
#include <map>

#include "XmlReader.h"

namespace tarnel::account {
namespace {

DavFault faultOf(HttpTrouble trouble) {
  switch (trouble) {
    case HttpTrouble::notReached:
      return DavFault::offline;
    case HttpTrouble::untrusted:
      return DavFault::untrusted;
    case HttpTrouble::refused:
    case HttpTrouble::badRedirect:
      return DavFault::noCalendar;
    case HttpTrouble::tooLarge:
    case HttpTrouble::unwanted:
      return DavFault::unreadable;
    case HttpTrouble::stopped:
      return DavFault::stopped;
    case HttpTrouble::lost:
    case HttpTrouble::none:
      break;
  }
  return DavFault::lost;
}

DavFault faultOf(int status) {
  if (status < 300) return DavFault::noCalendar;
  switch (status) {
    case 401:
      return DavFault::password;
    case 403:
      return DavFault::forbidden;
    case 404:
    case 410:
      return DavFault::absent;
    case 405:
    case 415:
    case 501:
      return DavFault::unsupported;
    case 429:
    case 503:
      return DavFault::busy;
    default:
      break;
  }
  return status < 500 ? DavFault::refused : DavFault::broken;
}

std::string sentence(const HttpAnswer& answer) {
  if (answer.trouble != HttpTrouble::none) return answer.reason;
  const std::string place = answer.url.place(), where = " at " + answer.url.path;
  switch (faultOf(answer.status)) {
    case DavFault::noCalendar:
      return "What answers at " + answer.url.text() + " is no calendar server. Look at the address.";
    case DavFault::password:
      return "The server " + place + " doesn't take the user or the password.";
    case DavFault::forbidden:
      return "The server " + place + " doesn't let this user do that" + where + " (403).";
    case DavFault::absent:
      return "The server " + place + " has nothing" + where + " (" + std::to_string(answer.status) + ").";
    case DavFault::busy:
      return "The server " + place + " asks to be left alone for a while (" + std::to_string(answer.status) + ").";
    default:
      return "The server " + place + " answered " + statusText(answer.status) + where + ".";
  }
}

}  // namespace

DavFailure::DavFailure(const HttpAnswer& answer, std::vector<std::string> conditions)
    : Failure(failure::automation, sentence(answer)),
      fault_(answer.trouble == HttpTrouble::none ? faultOf(answer.status) : faultOf(answer.trouble)),
      status_(answer.status),
      conditions_(std::move(conditions)),
      retryAfter_(answer.retryAfter),
      fingerprint_(answer.fingerprint) {}

bool DavFailure::names(std::string_view condition) const {
  return std::find(conditions_.begin(), conditions_.end(), condition) != conditions_.end();
}

std::vector<std::string> conditionsOf(const std::string& body) {
  std::vector<std::string> names;
  XmlReader reader(xml::dav, "error", [&](XmlElement&& element) { names.push_back(std::move(element.name)); });
  if (!reader.feed(body) || reader.end() != XmlFault::none) return {};
  return names;
}

std::string statusText(int status) {
  static const std::map<int, std::string> words = {
      {400, "Bad request"},       {403, "Forbidden"},    {404, "Not found"},
      {405, "Not allowed"},       {409, "Conflict"},     {412, "Changed meanwhile"},
      {413, "Too large"},         {415, "Not taken"},    {423, "Locked"},
      {429, "Too many requests"}, {500, "Server error"}, {501, "Not supported"},
      {502, "Bad gateway"},       {503, "Busy"},         {504, "No answer"},
      {507, "No space left"}};
  const auto found = words.find(status);
  return found == words.end() ? std::to_string(status) : found->second + " (" + std::to_string(status) + ")";
}

}  // namespace tarnel::account
