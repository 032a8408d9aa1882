#pragma once

#include <algorithm>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace tarnel {

// One listener's subscription: it ends when this object goes. May outlive the signal.
class [[nodiscard]] Connection {
 public:
  Connection() = default;
  explicit Connection(std::shared_ptr<bool> alive) : alive_(std::move(alive)) {}
  Connection(Connection&& other) noexcept : alive_(std::move(other.alive_)) {}
  Connection& operator=(Connection&& other) noexcept {
    disconnect();
    alive_ = std::move(other.alive_);
    return *this;
  }
  ~Connection() { disconnect(); }

  void disconnect() {
    if (alive_) *alive_ = false;
    alive_.reset();
  }

 private:
  std::shared_ptr<bool> alive_;
};

// An event and its listeners, called in the order of their subscription. A listener may detach itself or others,
// subscribe new ones or destroy the signal's owner inside the call: the call goes over a copy of the list and passes
// over whoever was detached meanwhile; whoever subscribed meanwhile is called from the next time on.
template <class... Args>
class Signal {
 public:
  using Listener = std::function<void(Args...)>;

  Signal() = default;
  Signal(const Signal&) = delete;
  Signal& operator=(const Signal&) = delete;

  Connection connect(Listener listener) {
    forgetDetached();
    auto alive = std::make_shared<bool>(true);
    slots_.push_back({alive, std::make_shared<Listener>(std::move(listener))});
    return Connection(std::move(alive));
  }

  void operator()(Args... args) const {
    if (slots_.empty()) return;
    const std::vector<Slot> slots = slots_;
    for (const Slot& slot : slots)
      if (*slot.alive) (*slot.listener)(args...);
  }

 private:
  struct Slot {
    std::shared_ptr<bool> alive;
    std::shared_ptr<Listener> listener;
  };

  void forgetDetached() {
    std::erase_if(slots_, [](const Slot& slot) { return !*slot.alive; });
  }

  std::vector<Slot> slots_;
};

}  // namespace tarnel
