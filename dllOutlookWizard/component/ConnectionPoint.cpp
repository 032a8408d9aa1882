#include "ConnectionPoint.h"

#include <algorithm>

#include "Contained.h"
#include "Failure.h"
#include "Identifiers.h"

namespace tarnel {
namespace {

std::string handlerOf(std::int32_t event) { return std::string("The host's handler of ") + tarnelEventName(event); }

// Counts the calls under way.
class Depth {
 public:
  explicit Depth(int& depth) : depth_(depth) { ++depth_; }
  ~Depth() { --depth_; }
  Depth(const Depth&) = delete;
  Depth& operator=(const Depth&) = delete;

 private:
  int& depth_;
};

TarnelResult invoke(__clsTarnelOutWizard& sink, std::int32_t event, std::vector<TarnelVariant>& arguments) {
  try {
    return sink.Invoke(event, arguments.empty() ? nullptr : arguments.data(),
                       static_cast<std::uint32_t>(arguments.size()));
  } catch (const std::exception& error) {
    throw Failure(failure::automation, handlerOf(event) + " failed: " + error.what());
  } catch (...) {
    throw Failure(failure::automation, handlerOf(event) + " failed with an exception of its own.");
  }
}

}  // namespace

TarnelResult ConnectionPoint::QueryInterface(const TarnelGuid* id, void** object) {
  if (!object) return TARNEL_NULL_POINTER;
  *object = nullptr;
  if (!id) return TARNEL_NULL_POINTER;
  if (!same(*id, IID_TarnelObject) && !same(*id, IID_TarnelConnectionPoint)) return TARNEL_NO_INTERFACE;
  *object = static_cast<TarnelConnectionPoint*>(this);
  AddRef();
  return TARNEL_OK;
}

TarnelResult ConnectionPoint::Advise(TarnelObject* sink, std::uint32_t* cookie) {
  if (cookie) *cookie = 0;
  if (!sink || !cookie) return TARNEL_NULL_POINTER;
  return guard_([&]() -> TarnelResult {
    void* object = nullptr;
    if (sink->QueryInterface(&DIID___clsTarnelOutWizard, &object) < 0 || !object) return TARNEL_CANT_CONNECT;
    auto reference = Reference<__clsTarnelOutWizard>::owning(static_cast<__clsTarnelOutWizard*>(object));
    sinks_.push_back({++lastCookie_, std::move(reference)});
    *cookie = lastCookie_;
    return TARNEL_OK;
  });
}

TarnelResult ConnectionPoint::Unadvise(std::uint32_t cookie) {
  return guard_([&]() -> TarnelResult {
    const auto found =
        std::find_if(sinks_.begin(), sinks_.end(), [=](const Sink& each) { return each.cookie == cookie; });
    if (found == sinks_.end()) return TARNEL_NO_CONNECTION;
    const Sink gone = std::move(*found);  // its last reference may call back
    sinks_.erase(found);
    return TARNEL_OK;
  });
}

bool ConnectionPoint::isConnected(std::uint32_t cookie) const {
  return std::any_of(sinks_.begin(), sinks_.end(), [=](const Sink& each) { return each.cookie == cookie; });
}

void ConnectionPoint::raise(std::int32_t event, std::vector<TarnelVariant> arguments,
                            const std::function<void()>& heard) {
  const Depth depth(raising_);
  const std::vector<Sink> sinks = sinks_;
  for (const Sink& sink : sinks) {
    if (!isConnected(sink.cookie)) continue;
    call(sink, event, arguments);
    if (heard) heard();
  }
}

void ConnectionPoint::call(const Sink& sink, std::int32_t event, std::vector<TarnelVariant>& arguments) {
  explanation_ = {};
  const TarnelResult result = invoke(*sink.object.operator->(), event, arguments);
  if (result >= 0) return;
  if (!explanation_.text.empty()) throw Failure(explanation_.number, explanation_.text);
  throw Failure(failure::automation, handlerOf(event) + " failed with the result " + std::to_string(result) + ".");
}

}  // namespace tarnel
