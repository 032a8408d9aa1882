#include "Faults.h"

namespace tarnel::test {
namespace {

std::string_view seamOf(std::string_view name) { return name.substr(0, name.find('.')); }

}  // namespace

Faults& faults() {
  static Faults faults;
  return faults;
}

int& HeldObject::count() {
  static int count = 0;
  return count;
}

void Faults::arm(std::size_t failingCall, Kind kind) {
  *this = Faults();
  armed_ = true;
  failingCall_ = failingCall;
  kind_ = kind;
}

bool Faults::failsNow(std::string_view name) {
  if (seamOf(name) == "report") return kind_ == Kind::silenced && fired_ && !std::exchange(reportFailed_, true);
  if (fired_) return kind_ == Kind::gone && seamOf(name) == seamOf(where_);
  calls_.emplace_back(name);
  if (calls_.size() != failingCall_) return false;
  fired_ = true;
  where_ = name;
  return true;
}

void Faults::raise(std::string_view name) { throw Failure(number, "A fault in " + std::string(name)); }

}  // namespace tarnel::test
