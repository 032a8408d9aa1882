#include "CurlClient.h"

#include <algorithm>
#include <cassert>

#include "CurlTransfer.h"
#include "Failure.h"

namespace tarnel::account {

class CurlClient::Parts {
 public:
  Parts(Url url, HttpSettings settings) : account{std::move(url), std::move(settings)} {
    static const CURLcode loaded = curl_global_init(CURL_GLOBAL_DEFAULT);
    multi.reset(loaded == CURLE_OK ? curl_multi_init() : nullptr);
    if (!multi) throw Failure(failure::automation, "libcurl can't be used.");
    // Not two requests at a time on one HTTP/2 connection: libcurl 7.88 forgets some of larger answers then, for ever.
    curl_multi_setopt(multi.get(), CURLMOPT_PIPELINING, static_cast<long>(CURLPIPE_NOTHING));
  }

  struct Free {
    void operator()(CURLM* done) const { curl_multi_cleanup(done); }
  };

  HttpAccount account;
  std::unique_ptr<CURLM, Free> multi;
  bool busy = false;
};

// One call of `exchange`: its requests on their way, which are taken off libcurl's hands however it ends.
class CurlClient::Exchange {
 public:
  Exchange(Parts& parts, const Next& next, const Done& done) : parts_(parts), next_(next), done_(done) {
    assert(!parts.busy && "neither next, done nor a take may use the client");
    parts.busy = true;
  }
  Exchange(const Exchange&) = delete;
  Exchange& operator=(const Exchange&) = delete;
  ~Exchange() {
    for (const auto& transfer : running_) curl_multi_remove_handle(parts_.multi.get(), transfer->handle());
    parts_.busy = false;
  }

  void run(std::size_t parallel) {
    const std::stop_token& stop = parts_.account.settings.stop;
    const std::stop_callback waking(stop, [this] { curl_multi_wakeup(parts_.multi.get()); });
    while (!stop.stop_requested()) {
      fill(parallel);
      if (running_.empty()) return;
      int count = 0;
      curl_multi_perform(parts_.multi.get(), &count);
      if (!collect()) curl_multi_poll(parts_.multi.get(), nullptr, 0, 1000, nullptr);
    }
    giveUp();
  }

 private:
  // One at a time while the password may still be the wrong one: servers lock out who tries it often.
  std::size_t room(std::size_t parallel) const {
    return parts_.account.hasSecret() && !parts_.account.proven ? 1 : std::max<std::size_t>(parallel, 1);
  }

  void fill(std::size_t parallel) {
    while (more_ && running_.size() < room(parallel)) {
      std::optional<HttpRequest> request = next_();
      more_ = request.has_value();
      if (more_) start(std::make_unique<CurlTransfer>(count_++, std::move(*request), parts_.account));
    }
  }

  void start(std::unique_ptr<CurlTransfer> transfer) {
    if (auto refused = transfer->prepare()) return done_(transfer->nth(), std::move(*refused));
    if (curl_multi_add_handle(parts_.multi.get(), transfer->handle()) != CURLM_OK)
      throw Failure(failure::automation, "libcurl doesn't take a request.");
    running_.push_back(std::move(transfer));
  }

  // Whether some request has ended.
  bool collect() {
    bool any = false;
    int left = 0;
    while (CURLMsg* message = curl_multi_info_read(parts_.multi.get(), &left)) {
      if (message->msg != CURLMSG_DONE) continue;
      any = true;
      end(message->easy_handle, message->data.result);
    }
    return any;
  }

  void end(CURL* handle, CURLcode code) {
    const auto at = std::find_if(running_.begin(), running_.end(),
                                 [&](const auto& transfer) { return transfer->handle() == handle; });
    curl_multi_remove_handle(parts_.multi.get(), handle);
    std::unique_ptr<CurlTransfer> transfer = std::move(*at);
    running_.erase(at);
    if (transfer->thrown()) std::rethrow_exception(transfer->thrown());
    if (auto answer = transfer->finish(code))
      done_(transfer->nth(), std::move(*answer));
    else
      start(std::move(transfer));
  }

  void giveUp() {
    while (!running_.empty()) {
      const std::unique_ptr<CurlTransfer> transfer = std::move(running_.back());
      running_.pop_back();
      curl_multi_remove_handle(parts_.multi.get(), transfer->handle());
      done_(transfer->nth(), transfer->abandoned(HttpTrouble::stopped, "Synchronising was stopped."));
    }
  }

  Parts& parts_;
  const Next& next_;
  const Done& done_;
  std::vector<std::unique_ptr<CurlTransfer>> running_;
  std::size_t count_ = 0;
  bool more_ = true;
};

CurlClient::CurlClient(Url account, HttpSettings settings)
    : parts_(std::make_unique<Parts>(std::move(account), std::move(settings))) {}

CurlClient::~CurlClient() = default;

void CurlClient::exchange(const Next& next, const Done& done, int parallel) {
  Exchange(*parts_, next, done).run(static_cast<std::size_t>(std::max(parallel, 1)));
}

}  // namespace tarnel::account
