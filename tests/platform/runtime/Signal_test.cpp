#include "Signal.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace tarnel {
namespace {

struct Signals : testing::Test {
  std::unique_ptr<Signal<>> signal = std::make_unique<Signal<>>();
  std::string heard;
  Connection listen(const char* name) {
    return signal->connect([this, name] { heard += name; });
  }
};

TEST_F(Signals, listenersAreCalledInOrderUntilTheyGo) {
  Connection a = listen("a");
  {
    Connection b = listen("b");
    (*signal)();
  }
  (*signal)();
  a.disconnect();
  (*signal)();
  EXPECT_EQ(heard, "aba");
}

TEST_F(Signals, detachedInsideTheCallIsPassedOver) {
  Connection later;
  Connection first = signal->connect([&] {
    heard += "1";
    later.disconnect();
    first.disconnect();
  });
  later = listen("2");
  (*signal)();
  (*signal)();
  EXPECT_EQ(heard, "1");
}

TEST_F(Signals, subscribedInsideTheCallHearsTheNextOne) {
  std::vector<Connection> added;
  Connection adds = signal->connect([&] { added.push_back(listen("n")); });
  (*signal)();
  EXPECT_EQ(heard, "");
  adds.disconnect();
  (*signal)();
  EXPECT_EQ(heard, "n");
}

TEST_F(Signals, listenerMayDestroyTheSignal) {
  Connection destroys = signal->connect([&] {
    signal.reset();
    heard += "d";
  });
  Connection later = listen("b");
  (*signal)();
  EXPECT_EQ(heard, "db");
  later.disconnect();
}

TEST_F(Signals, nestedCallReachesEveryone) {
  int depth = 0;
  Connection nests = signal->connect([&] {
    if (++depth < 3) (*signal)();
  });
  Connection end = listen("x");
  (*signal)();
  EXPECT_EQ(heard, "xxx");
}

}  // namespace
}  // namespace tarnel
