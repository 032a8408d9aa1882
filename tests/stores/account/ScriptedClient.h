#pragma once

#include "HttpFixture.h"

namespace tarnel::account {

// A client whose server's answers are written down; the last one is given again and again.
class ScriptedClient final : public HttpClient {
 public:
  explicit ScriptedClient(std::vector<HttpAnswer> answers) : answers_(std::move(answers)) {}

  void exchange(const Next& next, const Done& done, int) override {
    for (std::size_t nth = 0; auto request = next(); ++nth) {
      HttpAnswer answer = answers_[std::min(sent.size(), answers_.size() - 1)];
      answer.url = request->url;
      // In small parts, so that none of them is one of the document's.
      if (request->take && answer.status / 100 == 2) {
        const std::string body = std::exchange(answer.body, "");
        for (std::size_t at = 0; at < body.size() && answer.trouble == HttpTrouble::none; at += 7)
          if (!request->take(std::string_view(body).substr(at, 7))) answer.trouble = HttpTrouble::unwanted;
      }
      sent.push_back(std::move(*request));
      done(nth, std::move(answer));
    }
  }

  std::vector<HttpRequest> sent;

 private:
  std::vector<HttpAnswer> answers_;
};

inline HttpAnswer anAnswer(int status, const std::string& body = "", std::vector<HttpHeader> headers = {}) {
  HttpAnswer answer;
  answer.status = status;
  answer.body = body;
  answer.headers = std::move(headers);
  return answer;
}

// A 207 with these responses in it.
inline HttpAnswer aMultistatus(const std::string& contents) {
  return anAnswer(207, "<d:multistatus xmlns:d=\"DAV:\" xmlns:c=\"urn:ietf:params:xml:ns:caldav\">" + contents +
                           "</d:multistatus>");
}

inline std::string aMember(const std::string& path, const std::string& etag, const std::string& data = "") {
  return "<d:response><d:href>" + path + "</d:href><d:propstat><d:prop><d:getetag>&quot;" + etag +
         "&quot;</d:getetag>" + (data.empty() ? "" : "<c:calendar-data>" + data + "</c:calendar-data>") +
         "</d:prop><d:status>HTTP/1.1 200 OK</d:status></d:propstat></d:response>";
}

inline std::string aStatus(const std::string& path, int status) {
  return "<d:response><d:href>" + path + "</d:href><d:status>HTTP/1.1 " + std::to_string(status) +
         " x</d:status></d:response>";
}

}  // namespace tarnel::account
