#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "Reference.h"
#include "TarnelOutWizard.h"

namespace tarnel {

// Why a handler of the host fails, as it explained beforehand.
struct Explanation {
  std::int32_t number = 0;
  std::string text;
};

// The sinks of one wizard object, which this is a part of: it counts references on that object.
class ConnectionPoint final : public TarnelConnectionPoint {
 public:
  // How an operation of the owner is run: on its thread, with nothing thrown.
  using Guard = std::function<TarnelResult(const std::function<TarnelResult()>&)>;

  ConnectionPoint(TarnelObject& owner, Guard guard) : owner_(owner), guard_(std::move(guard)) {}

  TarnelResult QueryInterface(const TarnelGuid* id, void** object) override;
  std::uint32_t AddRef() override { return owner_.AddRef(); }
  std::uint32_t Release() override { return owner_.Release(); }
  TarnelResult Advise(TarnelObject* sink, std::uint32_t* cookie) override;
  TarnelResult Unadvise(std::uint32_t cookie) override;

  // Calls each sink that is still connected when its turn comes; `heard` runs after each call. Failure when a sink
  // fails or throws: its own words when it explained itself. The sinks after it aren't called then.
  void raise(std::int32_t event, std::vector<TarnelVariant> arguments = {}, const std::function<void()>& heard = {});

  // Whether a sink is being called.
  bool isRaising() const { return raising_ > 0; }
  void explain(Explanation explanation) { explanation_ = std::move(explanation); }

 private:
  struct Sink {
    std::uint32_t cookie;
    Reference<__clsTarnelOutWizard> object;
  };

  bool isConnected(std::uint32_t cookie) const;
  void call(const Sink& sink, std::int32_t event, std::vector<TarnelVariant>& arguments);

  TarnelObject& owner_;
  Guard guard_;
  std::vector<Sink> sinks_;
  std::uint32_t lastCookie_ = 0;
  int raising_ = 0;
  Explanation explanation_;
};

}  // namespace tarnel
