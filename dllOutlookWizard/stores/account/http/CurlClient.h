#pragma once

#include <memory>

#include "Http.h"
#include "HttpSettings.h"

namespace tarnel::account {

// The client on libcurl. It speaks to the account's host alone, plain http only on this machine, and through a proxy
// where the environment names one (https_proxy, no_proxy). Connections are kept for the next exchange.
//
// - Redirects are followed within the account's host, never from https to http; the request stays as it is.
// - The password goes out alone (one request at a time) until the server has taken it. Once refused, it is not sent
// again.
// - A request that changes something is never sent twice: where its connection ends early, it is lost.
class CurlClient final : public HttpClient {
 public:
  CurlClient(Url account, HttpSettings settings);
  ~CurlClient() override;

  void exchange(const Next& next, const Done& done, int parallel) override;

 private:
  class Parts;
  class Exchange;

  std::unique_ptr<Parts> parts_;
};

}  // namespace tarnel::account
