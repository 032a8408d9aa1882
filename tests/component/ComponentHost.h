#pragma once

#include <dlfcn.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>
#include <functional>
#include <memory>
#include <nlohmann/json.hpp>
#include <sstream>
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
  Library() : library_(dlopen(TARNEL_COMPONENT, RTLD_NOW | RTLD_LOCAL)) {
    if (!library_) throw std::runtime_error(dlerror());
  }
  ~Library() { dlclose(library_); }
  Library(const Library&) = delete;
  Library& operator=(const Library&) = delete;

  template <class Function>
  Function* function(const char* name) const {
    return reinterpret_cast<Function*>(address(name));
  }
  Held<TarnelClassFactory> factory() const {
    void* object = nullptr;
    const auto classObject = function<decltype(DllGetClassObject)>("DllGetClassObject");
    EXPECT_EQ(classObject(&CLSID_clsTarnelOutWizard, &IID_TarnelClassFactory, &object), TARNEL_OK);
    return Held<TarnelClassFactory>(static_cast<TarnelClassFactory*>(object));
  }
  TarnelResult canUnloadNow() const { return function<decltype(DllCanUnloadNow)>("DllCanUnloadNow")(); }

 private:
  void* address(const char* name) const { return dlsym(library_, name); }
  void* library_;
};

// A counted sink that notes the events and lets the test act in them.
class Sink final : public __clsTarnelOutWizard {
 public:
  using Act = std::function<TarnelResult(std::int32_t event, TarnelVariant* arguments)>;
  explicit Sink(Act act = {}) : act_(std::move(act)) {}

  TarnelResult QueryInterface(const TarnelGuid* id, void** object) override {
    if (std::memcmp(id, &DIID___clsTarnelOutWizard, sizeof *id) != 0) return TARNEL_NO_INTERFACE;
    *object = this;
    AddRef();
    return TARNEL_OK;
  }
  std::uint32_t AddRef() override { return ++references; }
  std::uint32_t Release() override {
    const std::uint32_t left = --references;
    if (left == 0) delete this;
    return left;
  }
  TarnelResult Invoke(std::int32_t event, TarnelVariant* arguments, std::uint32_t count) override {
    events.push_back(event);
    counts.push_back(count);
    return act_ ? act_(event, arguments) : TARNEL_OK;
  }

  std::vector<std::int32_t> events;
  std::vector<std::uint32_t> counts;  // of the arguments
  std::uint32_t references = 1;

 private:
  ~Sink() = default;

  Act act_;
};

inline Held<Sink> aSink(Sink::Act act = {}) { return Held<Sink>(new Sink(std::move(act))); }

// An open file of the user's.
struct File {
  File(const std::filesystem::path& path, int flags) : descriptor(open(path.c_str(), flags | O_CLOEXEC, 0600)) {}
  ~File() { close(descriptor); }
  File(const File&) = delete;
  File& operator=(const File&) = delete;
  const int descriptor;
};

// One object of the class, for a user with a demo database and folders of their own.
class Wizard {
 public:
  Wizard(const Library& library, const ProgramRun& user) : user_(user) {
    void* object = nullptr;
    EXPECT_EQ(library.factory()->CreateInstance(nullptr, &IID__clsTarnelOutWizard, &object), TARNEL_OK);
    wizard.reset(static_cast<_clsTarnelOutWizard*>(object));
    EXPECT_EQ(wizard->QueryInterface(&IID_TarnelWizardControl, &object), TARNEL_OK);
    control.reset(static_cast<TarnelWizardControl*>(object));
    EXPECT_EQ(wizard->QueryInterface(&IID_TarnelConnectionPoints, &object), TARNEL_OK);
    const Held<TarnelConnectionPoints> points(static_cast<TarnelConnectionPoints*>(object));
    TarnelConnectionPoint* found = nullptr;
    EXPECT_EQ(points->FindConnectionPoint(&DIID___clsTarnelOutWizard, &found), TARNEL_OK);
    point.reset(found);
  }

  std::uint32_t advise(Sink& sink) const {
    std::uint32_t cookie = 0;
    EXPECT_EQ(point->Advise(&sink, &cookie), TARNEL_OK);
    return cookie;
  }
  // Opens the wizard and carries out these commands; the facts go to `facts`.
  TarnelResult setUp(const std::string& commands) {
    user_.home.write("commands", commands);
    TarnelResult result = TARNEL_OK;
    {
      const File input(user_.home / "commands", O_RDONLY);
      const File output(user_.home / "facts", O_WRONLY | O_CREAT | O_TRUNC);
      EXPECT_EQ(control->UseScript(input.descriptor, output.descriptor), TARNEL_OK);
      result = setUp();
      control->UseWindow();
    }
    facts = contentsOf(user_.home / "facts");
    return result;
  }
  TarnelResult setUp() const {
    const std::string connection = "Data Source=" + (user_.home / "tasks.db").string() + ";";
    const TarnelText hours = tarnelText("DAY"), interval = tarnelText("M30"), database = tarnelText(connection.c_str());
    const TarnelBool appointments = TARNEL_NO;
    return wizard->Setup(&appointments, &hours, &interval, &database, nullptr);
  }
  // The facts but replies, one a line.
  std::string told() const {
    std::string told;
    std::istringstream lines(facts);
    for (std::string line; std::getline(lines, line);)
      if (line.rfind("{\"reply\"", 0) != 0) told += line + "\n";
    return told;
  }
  std::string firstFailure() const {
    TarnelText text{};
    if (control->FirstFailure(&text) != TARNEL_OK) return "none";
    std::string result(text.bytes, text.length);
    std::free(text.bytes);
    return result;
  }

  Held<_clsTarnelOutWizard> wizard;
  Held<TarnelWizardControl> control;
  Held<TarnelConnectionPoint> point;
  std::string facts;

 private:
  const ProgramRun& user_;
};

struct Component : testing::Test {
  // This process's user is the program's, whose database is there.
  Component() {
    for (const char* kind : {"CONFIG", "DATA", "STATE"})
      setenv(("XDG_" + std::string(kind) + "_HOME").c_str(), user.home.path().c_str(), 1);
    EXPECT_EQ(user("new tasks.db --demo").exitCode, 0);
  }

  ProgramRun user;
  Library library;
};

}  // namespace tarnel::test
