#pragma once

#include <cstdint>

namespace tarnel {

// What keeps the library in use: objects that hosts hold, and locks of its factory. Counted across threads.
class Live {
 public:
  static bool none();
  static void lock();
  // A lock that isn't there can't be taken back.
  static void unlock();

 protected:
  // A base of each object that hosts hold.
  Live();
  ~Live();

 public:
  Live(const Live&) = delete;
  Live& operator=(const Live&) = delete;
};

}  // namespace tarnel
