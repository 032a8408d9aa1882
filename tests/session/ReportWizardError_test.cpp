#include "ReportWizardError.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <stdexcept>

#include "Form.h"
#include "StandardHandler.h"
#include "TestPlatform.h"

namespace tarnel::test {
namespace {

class LoadedForm : public Form {
 public:
  LoadedForm(const char* name, std::string& log) : Form(name, name), log_(log) { load(); }
  std::function<void()> onUnload;

 protected:
  void Form_QueryUnload() override {
    log_ += Name() + " ";
    if (onUnload) onUnload();
  }

 private:
  std::string& log_;
};

struct Failing : testing::Test {
  TestPlatform platform;
  std::string unloaded;
};

TEST_F(Failing, handlerReportsAndKeepsTheResultOfThatMoment) {
  const auto result = standardHandler<std::int32_t>(modules::clsTaskList, "GetRowCount", [](std::int32_t& count) {
    count = 7;
    throw Failure(failure::overflow, "Overflow");
  });
  EXPECT_EQ(result, 7);
  standardHandler(modules::frmOutWiz, "SetupForm", [] { throw std::runtime_error("from elsewhere"); });

  const auto& reports = platform.errorReport.reports;
  ASSERT_EQ(reports.size(), 2U);
  EXPECT_EQ(reports[0].project + "/" + reports[0].module + "/" + reports[0].procedure + ": " + reports[0].text,
            "dllTarnel/clsTaskList/GetRowCount: Overflow");
  EXPECT_EQ(reports[0].number, failure::overflow);
  EXPECT_EQ(reports[0].lineMark, 0);
  EXPECT_EQ(reports[1].project, "TarnelOutWizard");
  EXPECT_EQ(reports[1].text, "from elsewhere");
  EXPECT_EQ(reports[1].number, failure::automation);
}

TEST_F(Failing, onlyARealProfileIsReported) {
  for (const char* profile : {"NONE", "", "Work"}) {
    session().theOutlookProfile = profile;
    ReportWizardError(modules::frmOutWiz, "x", "text", 1);
  }
  const auto& reports = platform.errorReport.reports;
  EXPECT_EQ(reports[0].profile + "," + reports[1].profile + "," + reports[2].profile, ",,Work");
}

TEST_F(Failing, allFormsGoTheWizardFirst) {
  LoadedForm popup("frmPopHelp", unloaded);
  LoadedForm wizard("frmOutWiz", unloaded);
  LoadedForm other("frmOther", unloaded);
  ReportWizardError(modules::frmPopHelp, "Setup", "text", 1);
  EXPECT_EQ(unloaded, "frmOutWiz frmPopHelp frmOther ");
  EXPECT_TRUE(openForms().empty());
}

TEST_F(Failing, formsThatFailOrDestroyOthersWhileTheyGoStopNothing) {
  auto victim = std::make_unique<LoadedForm>("frmVictim", unloaded);
  LoadedForm wizard("frmOutWiz", unloaded);
  LoadedForm last("frmLast", unloaded);
  wizard.onUnload = [&victim] {
    victim.reset();
    throw Failure(failure::objectNotSet, "on the way out");
  };
  ReportWizardError(modules::frmOutWiz, "SetupForm", "text", 1);
  EXPECT_EQ(unloaded, "frmOutWiz frmLast ");
  EXPECT_TRUE(openForms().empty());
  EXPECT_EQ(platform.errorReport.reports.size(), 1U) << "what fails on the way out is not told";
}

TEST_F(Failing, questionsAskAndMessagesTellUnderTheProductsTitle) {
  platform.desktop.answers = {MessageAnswer::yes};
  EXPECT_TRUE(askUser("Sure?"));
  EXPECT_FALSE(askUser("Sure?"));
  tellUserOfFailure("No.");
  const auto& messages = platform.desktop.messages;
  EXPECT_EQ(messages[0].title, "Tarnel - Version 1.14");
  EXPECT_EQ(messages[0].buttons, MessageButtons::yesNo);
  EXPECT_EQ(messages[2].icon, MessageIcon::critical);
}

struct RestingDatabase : NoDatabase {
  void rest() noexcept override { ++rests; }
  int rests = 0;
};

TEST_F(Failing, databaseRestsAfterEachCommandAlsoInsideAModalForm) {
  RestingDatabase database;
  platform.use(database);
  const auto command = [] {
    standardHandler(modules::frmOutWiz, "outer", [] { standardHandler(modules::frmOutWiz, "inner", [] {}); });
  };
  command();
  EXPECT_EQ(database.rests, 1);
  LoadedForm form("form", unloaded);
  platform.desktop.onModal = [&](Form& shown) {
    command();
    command();
    EXPECT_EQ(database.rests, 3);
    shown.unload();
  };
  standardHandler(modules::frmOutWiz, "Setup", [&] {
    runModal(form);
    EXPECT_EQ(database.rests, 3) << "the procedure that showed the form still runs";
  });
  EXPECT_EQ(database.rests, 4);
}

}  // namespace
}  // namespace tarnel::test
