#include "FaultProxy.h"

#include <sys/socket.h>
#include <unistd.h>

namespace tarnel::test {
namespace {

// Headers of one connection alone.
bool isOfConnection(const std::string& name) {
  return name == "connection" || name == "content-length" || name == "transfer-encoding" || name == "keep-alive" ||
         name == "host" || name == "accept-encoding";
}

std::string headerText(const ProxiedAnswer& answer) {
  std::string text;
  for (const auto& [name, value] : answer.headers) text += name + ": " + value + "\r\n";
  return text;
}

}  // namespace

FaultProxy::FaultProxy(int serverPort)
    : serverPort_(serverPort), server_([this](const Heard& request, Wire& wire) { return pass(request, wire); }) {}

void FaultProxy::add(Fault fault) {
  const std::scoped_lock lock(mutex_);
  waiting_.push_back(std::move(fault));
}

std::vector<Fault> FaultProxy::concerning(const Heard& request) {
  const std::scoped_lock lock(mutex_);
  std::vector<Fault> found;
  for (auto at = waiting_.begin(); at != waiting_.end();) {
    const bool concerned = at->concerns(request);
    if (concerned) found.push_back(*at);
    at = concerned && at->times > 0 && --at->times == 0 ? waiting_.erase(at) : std::next(at);
  }
  return found;
}

bool FaultProxy::pass(Heard request, Wire& wire) {
  const std::vector<Fault> faults = concerning(request);
  std::optional<ProxiedAnswer> answer;
  for (const Fault& fault : faults) {
    if (fault.onRequest) fault.onRequest(request);
    if (fault.instead) answer = fault.instead(request);
  }
  if (!answer) answer = asked(request);
  for (const Fault& fault : faults)
    if (fault.onAnswer) fault.onAnswer(request, *answer);
  count_ += static_cast<int>(faults.size());
  const std::string bytes = httpAnswer(answer->status, answer->body, headerText(*answer));
  wire.write(
      std::string_view(bytes).substr(0, static_cast<std::size_t>(answer->part * static_cast<double>(bytes.size()))));
  return answer->part >= 1;
}

ProxiedAnswer FaultProxy::asked(const Heard& request) const {
  std::string bytes = request.method + " " + request.target + " HTTP/1.0\r\n";
  for (const auto& [name, value] : request.headers)
    if (!isOfConnection(name)) bytes += name + ": " + value + "\r\n";
  bytes += "Host: 127.0.0.1:" + std::to_string(serverPort_) +
           "\r\nContent-Length: " + std::to_string(request.body.size()) + "\r\n\r\n" + request.body;
  const int socket = connectTo(serverPort_);
  Wire wire(socket);
  wire.write(bytes);
  ProxiedAnswer answer;
  wire.readAnswer(answer.status, answer.headers, answer.body);
  close(socket);
  if (answer.status == 0) answer.part = 0;  // the server is down
  std::erase_if(answer.headers, [](const auto& header) { return isOfConnection(header.first); });
  // Redirects lead through the proxy, too.
  const std::string place = "127.0.0.1:" + std::to_string(serverPort_);
  for (auto& [name, value] : answer.headers)
    if (const std::size_t at = value.find(place); name == "location" && at != std::string::npos)
      value.replace(at, place.size(), "127.0.0.1:" + std::to_string(server_.port()));
  return answer;
}

namespace faults {
namespace {

std::function<bool(const Heard&)> with(const std::string& method) {
  return [method](const Heard& heard) { return method.empty() || heard.method == method; };
}

std::string replaced(std::string text, const std::string& from, const std::string& to) {
  for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size())
    text.replace(at, from.size(), to);
  return text;
}

// Gives each DAV:response of a 207 to `edit`, whatever its prefix; the text that comes back takes its place.
std::string editedResponses(const std::string& body, const std::function<std::string(const std::string&)>& edit) {
  std::string result;
  std::size_t at = 0;
  const std::size_t colon = body.find(":multistatus");
  const std::size_t open = colon == std::string::npos ? colon : body.rfind('<', colon);
  const std::string prefix = open == std::string::npos ? "" : body.substr(open + 1, colon - open);
  const std::string begin = "<" + prefix + "response>", end = "</" + prefix + "response>";
  for (std::size_t next = 0; (next = body.find(begin, at)) != std::string::npos;) {
    result += body.substr(at, next - at);
    at = body.find(end, next) + end.size();
    result += edit(body.substr(next, at - next));
  }
  return result + body.substr(at);
}

Fault onAnswerTo(const std::string& method, std::function<void(const Heard&, ProxiedAnswer&)> act, int times = 1) {
  return {with(method), {}, {}, std::move(act), times};
}

bool isListing(const Heard& heard) {
  return heard.body.find("sync-collection") != std::string::npos || heard.method == "PROPFIND";
}

}  // namespace

Fault cutBefore(const std::string& method) {
  return {with(method), {}, [](const Heard&) { return ProxiedAnswer{500, {}, "", 0}; }, {}, 1};
}

Fault cutAfter(const std::string& method) {
  return onAnswerTo(method, [](const Heard&, ProxiedAnswer& answer) { answer.part = 0; });
}

Fault halfBody(const std::string& method) {
  return onAnswerTo(method, [](const Heard&, ProxiedAnswer& answer) { answer.body.resize(answer.body.size() / 2); });
}

Fault answers(const std::string& method, int status, const std::string& headers, const std::string& body) {
  ProxiedAnswer answer{status, {}, body, 1};
  if (const std::size_t colon = headers.find(": "); colon != std::string::npos)
    answer.headers = {{headers.substr(0, colon), headers.substr(colon + 2)}};
  return {with(method), {}, [answer](const Heard&) { return answer; }, {}, 1};
}

Fault emptyMultistatus(const std::string& method) {
  return answers(method, 207, "", "<d:multistatus xmlns:d=\"DAV:\"/>");
}

Fault shrunkMultistatus(const std::string& method, std::size_t keeps) {
  return onAnswerTo(method, [keeps](const Heard&, ProxiedAnswer& answer) {
    std::size_t count = 0;
    answer.body = editedResponses(answer.body, [&](const std::string& one) { return count++ < keeps ? one : ""; });
  });
}

Fault lateListing(const std::string& item) {
  return {isListing,
          {},
          {},
          [item](const Heard&, ProxiedAnswer& answer) {
            answer.body = editedResponses(
                answer.body, [&](const std::string& one) { return one.find(item) == std::string::npos ? one : ""; });
          },
          1};
}

Fault tags(TagFault fault) {
  return onAnswerTo(
      "",
      [fault](const Heard&, ProxiedAnswer& answer) {
        if (fault == TagFault::missing)
          std::erase_if(answer.headers, [](const auto& header) { return header.first == "etag"; });
        for (auto& [name, value] : answer.headers)
          if (name == "etag")
            value = fault == TagFault::weak ? "W/" + value : value.substr(0, value.size() - 1) + "-gzip\"";
      },
      -1);
}

Fault rewritten(const std::string& from, const std::string& to) {
  return {with("PUT"), [from, to](Heard& request) { request.body = replaced(request.body, from, to); }, {}, {}, -1};
}

Fault refusedToken(TokenFault fault) {
  const auto hasToken = [](const Heard& heard) {
    return heard.body.find("sync-collection") != std::string::npos &&
           heard.body.find("<d:sync-token></") == std::string::npos;
  };
  if (fault == TokenFault::fullList) {
    const auto forget = [](Heard& request) {
      const std::size_t begin = request.body.find("<d:sync-token>") + 14;
      request.body.erase(begin, request.body.find("</d:sync-token>") - begin);
    };
    const auto onlyMembers = [](const Heard&, ProxiedAnswer& answer) {
      answer.body = editedResponses(
          answer.body, [](const std::string& one) { return one.find(" 404 ") == std::string::npos ? one : ""; });
    };
    return {hasToken, forget, {}, onlyMembers, 1};
  }
  Fault refused = answers("", fault == TokenFault::forbidden ? 403 : 500, "",
                          "<d:error xmlns:d=\"DAV:\"><d:valid-sync-token/></d:error>");
  refused.concerns = hasToken;
  return refused;
}

Fault renamed(const std::string& from, const std::string& to) {
  const auto request = [from, to](Heard& heard) {
    heard.target = replaced(replaced(heard.target, from, from + "-gone"), to, from);
    heard.body = replaced(replaced(heard.body, from, from + "-gone"), to, from);
  };
  const auto answer = [from, to](const Heard&, ProxiedAnswer& answered) {
    answered.body = replaced(replaced(answered.body, from, to), to + "-gone", from);
  };
  return {with(""), request, {}, answer, -1};
}

Fault doubled(const std::string& item, const std::string& twin) {
  const auto request = [item, twin](Heard& heard) {
    heard.target = replaced(heard.target, twin, item);
    heard.body = replaced(heard.body, twin, item);
  };
  const auto answer = [item, twin](const Heard&, ProxiedAnswer& answered) {
    answered.body = editedResponses(answered.body, [&](const std::string& one) {
      return one.find(item) == std::string::npos ? one : one + replaced(one, item, twin);
    });
  };
  return {with(""), request, {}, answer, -1};
}

}  // namespace faults

}  // namespace tarnel::test
