#pragma once

#include <curl/curl.h>

#include <exception>
#include <memory>
#include <string>

#include "Http.h"
#include "HttpSettings.h"
#include "TlsWitness.h"

namespace tarnel::account {

// What the transfers of an account tell each other.
struct HttpAccount {
  Url url;
  HttpSettings settings;
  long scheme = 0;        // libcurl's bit of the way to log in that the server takes; 0 before it was asked
  bool proven = false;    // the server has taken the password, or wants none
  bool rejected = false;  // it has refused it

  bool mayAsk(const Url& other) const;
  bool hasSecret() const { return !settings.password.empty() || !settings.bearer.empty(); }
};

// One request on its way through libcurl, redirects included.
class CurlTransfer {
 public:
  CurlTransfer(std::size_t nth, HttpRequest request, HttpAccount& account);

  std::size_t nth() const { return nth_; }
  CURL* handle() const { return handle_.get(); }

  // Makes the handle ready for the present address. None when it is; else the answer that refuses it.
  std::optional<HttpAnswer> prepare();
  // What came of it, once libcurl has ended with `code`. None when `prepare` is to be called for the next address.
  std::optional<HttpAnswer> finish(CURLcode code);
  // The answer of a request that is given up.
  HttpAnswer abandoned(HttpTrouble trouble, const std::string& reason);

  // What a callback threw, to be thrown again outside of libcurl.
  std::exception_ptr thrown() const { return thrown_; }

 private:
  void setAddress();
  void setRequest();
  void setTrust();
  void setCredentials();
  void setLimits();
  std::string refusal() const;
  std::optional<HttpAnswer> redirected();
  HttpAnswer troubled(CURLcode code);
  std::string complaint(CURLcode code) const;
  void learnScheme();

  static std::size_t onHeader(char* bytes, std::size_t one, std::size_t size, void* self);
  static std::size_t onBody(char* bytes, std::size_t one, std::size_t size, void* self);
  static int onStart(void* self, char* serverIp, char* ownIp, int serverPort, int ownPort);
  static CURLcode onTls(CURL* handle, void* context, void* self);
  static std::size_t guarded(void* self, bool (CurlTransfer::*take)(std::string_view), std::string_view part);
  bool takeHeader(std::string_view line);
  bool takeBody(std::string_view part);

  struct Free {
    void operator()(CURL* handle) const { curl_easy_cleanup(handle); }
    void operator()(curl_slist* list) const { curl_slist_free_all(list); }
  };

  std::size_t nth_;
  HttpRequest request_;
  HttpAccount& account_;
  std::unique_ptr<CURL, Free> handle_;
  std::unique_ptr<curl_slist, Free> headers_;
  HttpAnswer answer_;
  TlsWitness witness_;
  std::exception_ptr thrown_;
  std::size_t headerBytes_ = 0;
  std::size_t bodyBytes_ = 0;
  int redirects_ = 0;
  bool sent_ = false;      // the request may have reached a server
  bool answered_ = false;  // since it was last sent, some answer came
  bool headersEnded_ = false;
  bool twice_ = false;  // libcurl wanted to send it again without one
};

}  // namespace tarnel::account
