#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "Failure.h"

namespace tarnel::test {

// Counts the calls on the world outside of the wizard and makes one of them fail. Names are "outlook.Save",
// "database.query", "rows.Find" and so on; what comes before the point is the seam.
class Faults {
 public:
  enum class Kind {
    before,    // the call fails and has done nothing
    after,     // the call has done its work and fails all the same
    gone,      // this call and every later one at the same seam fail
    silenced,  // as `before`, and the report of that failure fails too
  };
  static constexpr std::int32_t number = 31337;

  // Counting from 1; 0 lets all calls pass.
  void arm(std::size_t failingCall, Kind kind) {
    *this = Faults();
    armed_ = true;
    failingCall_ = failingCall;
    kind_ = kind;
  }
  void disarm() { armed_ = false; }

  // Those counted since then, in their order, up to the one that failed.
  const std::vector<std::string>& calls() const { return calls_; }
  bool fired() const { return fired_; }
  // The call that failed first.
  const std::string& where() const { return where_; }

  template <class Body>
  auto call(std::string_view name, Body&& body) -> decltype(body()) {
    const bool fails = armed_ && failsNow(name);
    if (fails && kind_ != Kind::after) raise(name);
    if constexpr (std::is_void_v<decltype(body())>) {
      std::forward<Body>(body)();
      if (fails) raise(name);
    } else {
      decltype(body()) result = std::forward<Body>(body)();
      if (fails) raise(name);
      return result;
    }
  }

 private:
  static std::string_view seamOf(std::string_view name) { return name.substr(0, name.find('.')); }
  bool failsNow(std::string_view name) {
    if (seamOf(name) == "report") return kind_ == Kind::silenced && fired_ && !std::exchange(reportFailed_, true);
    if (fired_) return kind_ == Kind::gone && seamOf(name) == seamOf(where_);
    calls_.emplace_back(name);
    if (calls_.size() != failingCall_) return false;
    fired_ = true;
    where_ = name;
    return true;
  }
  [[noreturn]] static void raise(std::string_view name) { throw Failure(number, "A fault in " + std::string(name)); }

  bool armed_ = false;
  bool fired_ = false;
  bool reportFailed_ = false;
  std::vector<std::string> calls_;
  std::size_t failingCall_ = 0;
  Kind kind_ = Kind::before;
  std::string where_;
};

// One for all seams.
inline Faults& faults() {
  static Faults faults;
  return faults;
}

// How many objects of Outlook the wizard holds.
struct HeldObject {
  HeldObject() { ++count; }
  ~HeldObject() { --count; }
  HeldObject(const HeldObject&) = delete;
  HeldObject& operator=(const HeldObject&) = delete;

  static inline int count = 0;
};

}  // namespace tarnel::test
