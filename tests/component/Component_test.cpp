#include <cmath>
#include <stdexcept>
#include <thread>

#include "ComponentHost.h"

namespace tarnel::test {
namespace {

// Picks another mode for the appointments and saves it, which raises three events.
const std::string updates = "tab 2\nclick smtSettings APPT4\nclick smtActions UPDATE\n";
using Events = std::vector<std::int32_t>;

TEST_F(Component, eventsComeByNumberAndTakeWhatAHandlerPutsIn) {
  Wizard wizard(library, user);
  const auto first = aSink([](std::int32_t event, TarnelVariant* arguments) {
    if (event != TARNEL_UPDATE_OUTLOOK_SETTINGS) return TARNEL_OK;
    *arguments[0].value.int32Reference = 7;
    return tarnelReplaceText(&arguments[2].value.variantReference->value.text, "Grüße");
  });
  std::string seen;
  const auto second = aSink([&seen](std::int32_t event, TarnelVariant* arguments) {
    if (event != TARNEL_UPDATE_OUTLOOK_SETTINGS) return TARNEL_OK;
    const TarnelText& profile = arguments[2].value.variantReference->value.text;
    seen = std::to_string(*arguments[0].value.int32Reference) + " " +
           std::to_string(*arguments[1].value.int32Reference) + " " + std::string(profile.bytes, profile.length);
    return TARNEL_OK;
  });
  wizard.advise(*first);
  const std::uint32_t cookie = wizard.advise(*second);
  EXPECT_EQ(wizard.setUp(updates), TARNEL_OK);
  EXPECT_EQ(wizard.told(), "");
  EXPECT_EQ(first->events, (Events{7, 2, 1}));
  EXPECT_EQ(first->counts, (std::vector<std::uint32_t>{3, 0, 0}));
  EXPECT_EQ(second->events, first->events);
  EXPECT_EQ(seen, "7 3 Grüße");
  EXPECT_EQ(wizard.firstFailure(), "none");
  EXPECT_EQ(wizard.point->Unadvise(cookie), TARNEL_OK);
  EXPECT_EQ(wizard.point->Unadvise(cookie), TARNEL_NO_CONNECTION);
  EXPECT_EQ(second->references, 1U);
}

TEST_F(Component, sinksMayLeaveAndTheObjectBeReleasedInsideAnEvent) {
  Wizard wizard(library, user);
  std::uint32_t ownCookie = 0, nextCookie = 0;
  const auto leaving = aSink([&](std::int32_t, TarnelVariant*) {
    EXPECT_EQ(wizard.point->Unadvise(ownCookie), TARNEL_OK);
    EXPECT_EQ(wizard.point->Unadvise(nextCookie), TARNEL_OK);
    return TARNEL_OK;
  });
  const auto next = aSink();
  const auto last = aSink([&](std::int32_t event, TarnelVariant*) {
    if (event != TARNEL_CLOSE_THE_WIZARD) return TARNEL_OK;
    wizard.point.reset();
    wizard.wizard.release()->Release();
    return TARNEL_OK;
  });
  ownCookie = wizard.advise(*leaving);
  nextCookie = wizard.advise(*next);
  wizard.advise(*last);
  EXPECT_EQ(wizard.setUp(updates), TARNEL_OK);
  EXPECT_EQ(leaving->events, (Events{7}));
  EXPECT_EQ(next->events, Events{}) << "its turn came when it had left";
  EXPECT_EQ(last->events, (Events{7, 2, 1}));
  EXPECT_EQ(leaving->references, 1U);
  wizard.control.reset();
  EXPECT_EQ(last->references, 1U);
  EXPECT_EQ(library.canUnloadNow(), TARNEL_OK);
}

TEST_F(Component, onlyOneWizardIsOpenOnAThread) {
  Wizard wizard(library, user), other(library, user);
  const auto sink = aSink([&](std::int32_t, TarnelVariant*) {
    EXPECT_EQ(wizard.setUp(), TARNEL_BUSY);
    EXPECT_EQ(other.setUp(), TARNEL_BUSY);
    EXPECT_EQ(wizard.control->UseWindow(), TARNEL_BUSY);
    EXPECT_EQ(other.control->CopyCurrentTasks(), TARNEL_NO_WIZARD);
    return TARNEL_OK;
  });
  wizard.advise(*sink);
  EXPECT_EQ(wizard.setUp("key 27\n"), TARNEL_OK);
  EXPECT_EQ(sink->events, (Events{1}));
  EXPECT_EQ(other.setUp("list smtTaskList(0)\n"), TARNEL_OK);
  EXPECT_NE(other.facts.find("File the tax return"), std::string::npos) << other.facts;
  EXPECT_EQ(sink->events, (Events{1})) << "each object has its own sinks";
  TarnelResult elsewhere = TARNEL_OK;
  std::thread([&] { elsewhere = wizard.setUp(); }).join();
  EXPECT_EQ(elsewhere, TARNEL_WRONG_THREAD);
}

TEST_F(Component, nextWizardOnAScriptReadsOnWhereTheOneBeforeEnded) {
  Wizard wizard(library, user);
  user.home.write("commands", "key 27\nlist smtTaskList(0)\n");
  const File commands(user.home / "commands", O_RDONLY), facts(user.home / "facts", O_WRONLY | O_CREAT);
  EXPECT_EQ(wizard.control->UseScript(commands.descriptor, facts.descriptor), TARNEL_OK);
  for (int i = 0; i < 2; ++i) EXPECT_EQ(wizard.setUp(), TARNEL_OK);
  EXPECT_NE(contentsOf(user.home / "facts").find("File the tax return"), std::string::npos);
}

TEST_F(Component, handlerThatFailsIsReportedAndEndsTheWizard) {
  Wizard wizard(library, user);
  const auto reportOf = [&](const Sink::Act& act) {
    const auto sink = aSink(act);
    const std::uint32_t cookie = wizard.advise(*sink);
    EXPECT_EQ(wizard.setUp(updates), TARNEL_OK);
    wizard.point->Unadvise(cookie);
    const std::string line = wizard.told().substr(0, wizard.told().find('\n'));
    const auto report = nlohmann::json::parse(line, nullptr, false)["report"];
    const std::string text = report["text"];
    EXPECT_NE(wizard.firstFailure().find(text), std::string::npos) << wizard.firstFailure();
    return report["number"].dump() + " " + text;
  };
  const auto throwing = [](std::int32_t, TarnelVariant*) -> TarnelResult { throw std::runtime_error("no disk"); };
  EXPECT_EQ(reportOf(throwing), "440 The host's handler of UpdateOutlookSettings failed: no disk");
  const auto throwingAny = [](std::int32_t, TarnelVariant*) -> TarnelResult { throw 5; };
  EXPECT_EQ(reportOf(throwingAny),
            "440 The host's handler of UpdateOutlookSettings failed with an exception of its own.");
  const auto explaining = [&](std::int32_t, TarnelVariant*) {
    const TarnelText text = tarnelText("The profile's file is gone.");
    EXPECT_EQ(wizard.control->ExplainFailure(53, &text), TARNEL_OK);
    return TARNEL_FAILED;
  };
  EXPECT_EQ(reportOf(explaining), "53 The profile's file is gone.");
  const auto confusing = [](std::int32_t event, TarnelVariant* arguments) {
    if (event == TARNEL_UPDATE_OUTLOOK_SETTINGS) {
      std::free(arguments[2].value.variantReference->value.text.bytes);
      arguments[2].value.variantReference->kind = TARNEL_INT32;
    }
    return TARNEL_OK;
  };
  EXPECT_EQ(reportOf(confusing),
            "13 The host's handler of UpdateOutlookSettings put something else than a text into newProfile.");
  EXPECT_EQ(wizard.setUp("show\n"), TARNEL_OK);
  EXPECT_EQ(wizard.firstFailure(), "none") << "of the last Setup";
}

TEST_F(Component, transfersRunInsideAnEventAndNowhereElse) {
  Wizard wizard(library, user);
  EXPECT_EQ(wizard.control->CopyCurrentTasks(), TARNEL_NO_WIZARD);
  const TarnelText text = tarnelText("x");
  EXPECT_EQ(wizard.control->ExplainFailure(5, &text), TARNEL_NO_WIZARD);
  const auto sink = aSink([&](std::int32_t event, TarnelVariant*) {
    if (event != TARNEL_OUTLOOK_PREFS_CHANGED) return TARNEL_OK;
    EXPECT_EQ(wizard.control->CopyCurrentTasks(), TARNEL_OK);
    return wizard.control->ImportOutlookTasks();
  });
  wizard.advise(*sink);
  EXPECT_EQ(wizard.setUp(updates), TARNEL_OK);
  EXPECT_NE(wizard.told().find("\"message\""), std::string::npos) << wizard.told();
  EXPECT_EQ(wizard.firstFailure(), "none");
}

TEST_F(Component, argumentsThatMakeNoSenseAreRefused) {
  Wizard wizard(library, user);
  const TarnelBool no = TARNEL_NO;
  const TarnelText text = tarnelText("DAY");
  TarnelText nullInside = text, noBytes{nullptr, 3};
  nullInside.bytes = const_cast<char*>("D\0Y");
  const auto setUp = [&](const TarnelBool* appointments, const TarnelText* hours, const double* date) {
    return wizard.wizard->Setup(appointments, hours, &text, &text, date);
  };
  EXPECT_EQ(setUp(nullptr, &text, nullptr), TARNEL_NULL_POINTER);
  EXPECT_EQ(setUp(&no, nullptr, nullptr), TARNEL_NULL_POINTER);
  EXPECT_EQ(setUp(&no, &noBytes, nullptr), TARNEL_NULL_POINTER);
  EXPECT_EQ(setUp(&no, &nullInside, nullptr), TARNEL_INVALID_ARGUMENT);
  for (const double date : {std::nan(""), HUGE_VAL, -1e6, 2958465.0, 3e6})
    EXPECT_EQ(setUp(&no, &text, &date), TARNEL_INVALID_ARGUMENT);
  TarnelBool kept = 1;
  EXPECT_EQ(wizard.wizard->SetTaskPrintSetting(nullptr, &kept), TARNEL_NULL_POINTER);
  EXPECT_EQ(kept, TARNEL_NO);
  EXPECT_EQ(wizard.wizard->SetTaskPrintSetting(&text, &kept), TARNEL_OK);
  EXPECT_EQ(kept, TARNEL_YES);
  EXPECT_EQ(wizard.control->UseScript(-1, 1), TARNEL_INVALID_ARGUMENT);
  EXPECT_EQ(wizard.control->UsePictures(&text, std::nan(""), no, 1), TARNEL_INVALID_ARGUMENT);
  EXPECT_EQ(wizard.control->UsePictures(&text, 1, no, -1), TARNEL_INVALID_ARGUMENT);
  EXPECT_EQ(wizard.control->UseMailbox(nullptr), TARNEL_NULL_POINTER);
  EXPECT_EQ(wizard.control->FirstFailure(nullptr), TARNEL_NULL_POINTER);
  std::uint32_t cookie = 1;
  EXPECT_EQ(wizard.point->Advise(nullptr, &cookie), TARNEL_NULL_POINTER);
  EXPECT_EQ(wizard.point->Advise(wizard.control.get(), &cookie), TARNEL_CANT_CONNECT);
  EXPECT_EQ(cookie, 0U);
}

TEST_F(Component, worldThatRefusesTheWizardIsAResultWithItsWords) {
  Wizard wizard(library, user);
  const std::string blocked = (user.home.write("file", "") / "x.mailbox").string();
  setenv("XDG_DATA_HOME", (user.home / "file").c_str(), 1);
  EXPECT_EQ(wizard.setUp("show\n"), TARNEL_FAILURE(440)) << "no mailbox can be made for this user";
  EXPECT_NE(wizard.firstFailure().find("Outlook.mailbox\" can't be created"), std::string::npos);
  EXPECT_EQ(wizard.wizard->Setup(nullptr, nullptr, nullptr, nullptr, nullptr), TARNEL_NULL_POINTER);
  EXPECT_EQ(wizard.firstFailure(), "none") << "of the last Setup";
  const TarnelText mailbox = tarnelText(blocked.c_str());
  EXPECT_EQ(wizard.control->UseMailbox(&mailbox), TARNEL_OK);
  EXPECT_EQ(wizard.setUp("show\n"), TARNEL_OK) << "told in the wizard";
}

#ifdef TARNEL_QT
// Whatever face came before, a window that nobody could see or close is a failure, not a wait without end.
TEST_F(Component, windowWithoutAScreenIsAFailureAlsoAfterPictures) {
  for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) unsetenv(variable);
  Wizard wizard(library, user);
  const std::string folder = (user.home / "pictures").string();
  const TarnelText pictures = tarnelText(folder.c_str());
  EXPECT_EQ(wizard.control->UsePictures(&pictures, 1, TARNEL_YES, STDERR_FILENO), TARNEL_OK);
  EXPECT_EQ(wizard.setUp(), TARNEL_OK);
  EXPECT_TRUE(std::filesystem::exists(user.home / "pictures/frmOutWiz-Tasks.png"));
  EXPECT_EQ(wizard.control->UseWindow(), TARNEL_OK);
  EXPECT_EQ(wizard.setUp(), TARNEL_FAILURE(53));
  EXPECT_NE(wizard.firstFailure().find("no screen answers"), std::string::npos) << wizard.firstFailure();
  setenv("QT_QPA_PLATFORM", "nonsense", 1);
  EXPECT_EQ(wizard.setUp(), TARNEL_FAILURE(53));
  EXPECT_NE(wizard.firstFailure().find("QT_QPA_PLATFORM=\"nonsense\""), std::string::npos) << wizard.firstFailure();
  EXPECT_STREQ(std::getenv("QT_QPA_PLATFORM"), "nonsense");
  unsetenv("QT_QPA_PLATFORM");
}
#endif

}  // namespace
}  // namespace tarnel::test
