#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "ProgramRun.h"
#include "TarnelOutWizard.h"

namespace tarnel::test {

struct Release {
  void operator()(TarnelObject* object) const { object->Release(); }
};
template <class Interface>
using Held = std::unique_ptr<Interface, Release>;

// The library as a host loads it.
struct Library {
  Library();
  ~Library();
  Library(const Library&) = delete;
  Library& operator=(const Library&) = delete;

  template <class Function>
  Function* function(const char* name) const {
    return reinterpret_cast<Function*>(address(name));
  }
  Held<TarnelClassFactory> factory() const;
  TarnelResult canUnloadNow() const { return function<decltype(DllCanUnloadNow)>("DllCanUnloadNow")(); }

 private:
  void* address(const char* name) const;
  void* library_;
};

// A counted sink that notes the events and lets the test act in them.
class Sink final : public __clsTarnelOutWizard {
 public:
  using Act = std::function<TarnelResult(std::int32_t event, TarnelVariant* arguments)>;
  explicit Sink(Act act = {}) : act_(std::move(act)) {}

  TarnelResult QueryInterface(const TarnelGuid* id, void** object) override;
  std::uint32_t AddRef() override { return ++references; }
  std::uint32_t Release() override;
  TarnelResult Invoke(std::int32_t event, TarnelVariant* arguments, std::uint32_t count) override;

  std::vector<std::int32_t> events;
  std::vector<std::uint32_t> counts;  // of the arguments
  std::uint32_t references = 1;

 private:
  ~Sink() = default;

  Act act_;
};

inline Held<Sink> aSink(Sink::Act act = {}) { return Held<Sink>(new Sink(std::move(act))); }

// One object of the class, for a user with a demo database and folders of their own.
class Wizard {
 public:
  Wizard(const Library& library, const ProgramRun& user);

  std::uint32_t advise(Sink& sink) const;
  // Opens the wizard and carries out these commands; the facts go to `facts`.
  TarnelResult setUp(const std::string& commands);
  TarnelResult setUp() const;
  // The facts but replies, one a line.
  std::string told() const;
  std::string firstFailure() const;

  Held<_clsTarnelOutWizard> wizard;
  Held<TarnelWizardControl> control;
  Held<TarnelConnectionPoint> point;
  std::string facts;

 private:
  const ProgramRun& user_;
};

class Component : public testing::Test {
 protected:
  // This process's user is the program's, whose database is there.
  Component();

  ProgramRun user;
  Library library;
};

}  // namespace tarnel::test
