#include "ScriptDesktop.h"

#include <gtest/gtest.h>

#include <memory>
#include <nlohmann/json.hpp>
#include <sstream>

#include "Form.h"
#include "Panels.h"
#include "SSSplitter.h"
#include "SftTabs.h"
#include "SmartUI.h"
#include "ctDropDate.h"
#include "ctMDay.h"

namespace tarnel::script {
namespace {

// One of each kind of control that a command acts on, in a panel that can be hidden.
struct SmallForm : Form {
  SmallForm() : Form("frmSmall", "Small") {
    for (Control* control : std::initializer_list<Control*>{&tabs, &panel, &list, &bar, &day, &date, &split})
      addControl(*control);
    for (Control* inside : std::initializer_list<Control*>{&list, &bar, &day, &date, &split})
      inside->setContainer(panel);
    list.Items().Add(0, "A", "First & best", SmartItemType::checkRow);
    list.Items().Add(0, "NOTE", "Only text", SmartItemType::label);
    SmartItem& pick = bar.Items().Add(0, "PICK", "", SmartItemType::dropDown);
    pick.SubItems().Add(0, "HEAD", "Group", SmartItemType::group);
    pick.SubItems().Add(0, "ONE", "Number one", SmartItemType::dropDownEntry);
    bar.Items().Add(0, "DONE", "&Done", SmartItemType::button);
    bar.Items().Add(0, "GHOST", "Ghost", SmartItemType::button).setVisible(false);
    bar.Items().Add(0, "OPT", "Option", SmartItemType::option);
    day.AppAdd(540, 600, 46345, "Talk", "K1");
    split.Move(0, 0, 8000, 5000);
    Move(100, 200, 8400, 6000);
  }

  SftTabs tabs{"tabWiz", {"&One", "&Two"}};
  PictureBox panel{"picWiz", 0};
  SmartUI list{"smtList", 0, SmartUI::Look::checkList};
  SmartUI bar{"smtActions", SmartUI::Look::bar};
  ctMDay day{"ctDaySked", 0};
  ctDropDate date{"ctDeadline"};
  SSSplitter split{"splitTasks"};
};

struct Script : testing::Test {
  // Shows the form with these commands and gives the facts.
  std::vector<nlohmann::json> run(const std::string& commandLines) {
    commands.str(commandLines);
    form.load();
    form.showModal(desktop);
    std::vector<nlohmann::json> lines;
    std::istringstream in(facts.str());
    for (std::string line; std::getline(in, line);) lines.push_back(nlohmann::json::parse(line));
    return lines;
  }

  std::istringstream commands;
  std::ostringstream facts;
  ScriptDesktop desktop{commands, facts};
  SmallForm form;
};

TEST_F(Script, dividerIsDraggedAndABlankLineIsNoCommand) {
  run("\nsplit splitTasks 3000\n \n");
  EXPECT_EQ(form.split.Panes("Left").Width(), 3000);
  EXPECT_EQ(facts.str(), "{\"reply\":\"split\"}\n");
}

TEST_F(Script, refusedCommandChangesNothingAndRepeatsItself) {
  const std::string refused =
      "fly\nshow me\nlist nothing\nlist tabWiz\nclick smtActions GHOST\nclick smtActions NONE\nclick smtList(0) NOTE\n"
      "click smtActions PICK\ncheck smtActions DONE on\ncheck smtList(0) A maybe\ncheck smtActions OPT off\n"
      "choose smtActions PICK Group\nchoose smtActions PICK Nine\nchoose smtActions DONE x\nsked 1\nsked x\n"
      "select 0 0\nselect 0 2\ntab 2\ntab -1\nkey 0\nkey 256\nkey 1x\nkey a\ndate 2026-02-30\ndate \"2026-02-03 "
      "10:00\"\nresize 10\n"
      "resize -1 5\nresize 99999999 5\nsplit splitAppts 5\nanswer perhaps\nlist \"open\n";
  int clicks = 0;
  const Connection onClick = form.bar.Click.connect([&](SmartItem&) { ++clicks; });
  std::string told;
  for (const auto& line : run(refused)) {
    EXPECT_TRUE(line.contains("error")) << line;
    told += line["command"].get<std::string>() + "\n";
  }
  EXPECT_EQ(told, refused);
  EXPECT_EQ(clicks, 0);
  EXPECT_EQ(form.placement(), (Placement{100, 200, 8400, 6000}));
}

TEST_F(Script, aCommandThatIsTooLongIsRefusedWithoutRepeatingIt) {
  const auto lines = run(std::string(100'000, 'x') + "\n" + std::string(5'000'000, 'y') + "\nshow\n");
  ASSERT_EQ(lines.size(), 3U);
  EXPECT_EQ(lines[0]["command"], std::string(100'000, 'x'));
  EXPECT_EQ(lines[1]["error"], "A command has at most 100000 bytes");
  EXPECT_EQ(lines[1]["command"], std::string(100, 'y') + "...");
  EXPECT_EQ(lines[2]["reply"], "show");
}

TEST_F(Script, whatAUserCannotReachIsRefused) {
  form.panel.setVisible(false);
  form.tabs.setTabEnabled(1, false);
  for (const auto& line : run("check smtList(0) A on\nclick smtActions DONE\ndate 2026-11-19\nselect 0 1\ntab 1\n"))
    EXPECT_TRUE(line.contains("error")) << line;
  EXPECT_FALSE(form.list.Items().Item("A").Checked());
}

TEST_F(Script, stateIsToldWhole) {
  desktop.setSizes([](const Form&) { return std::vector<float>{1, 0.5F}; });
  const auto lines = run("show\nlist smtActions\nsked 0\n");
  EXPECT_EQ(lines[0].dump(),
            R"({"buttons":{"DONE":true,"GHOST":false,"OPT":true,"PICK":true},"date":"1899-12-30",)"
            R"("form":{"height":6000.0,"left":100.0,"name":"frmSmall","top":200.0,"width":8400.0},"header":null,)"
            R"("meSizes":[1.0,0.5],"panel":0,"pointer":0,"reply":"show","tab":0,"tabsEnabled":[true,true]})");
  EXPECT_EQ(lines[1]["items"][0]["subItems"][1]["caption"], "Number one");
  EXPECT_EQ(lines[1]["items"][0]["value"], nullptr);
  EXPECT_EQ(lines[2]["rows"][0].dump(),
            R"({"allDay":false,"color":16777215,"date":"2026-11-19","end":600,"index":1,"key":"K1","markImage":0,)"
            R"("ownerImage":0,"start":540,"state":0,"tag":"","text":"Talk"})");
}

TEST_F(Script, formDestroyedByItsOwnCommandEndsTheLoop) {
  auto mortal = std::make_unique<SmallForm>();
  const Connection destroys = mortal->bar.Click.connect([&](SmartItem&) {
    if (mortal) mortal->unload();
    mortal.reset();
  });
  commands.str("click smtActions OPT\nkey 1\n");
  mortal->load();
  mortal->showModal(desktop);
  EXPECT_EQ(facts.str(), "{\"reply\":\"click\"}\n");
}

TEST_F(Script, boxesAreToldWholeAndAQuestionWithoutAnAnswerIsDeclined) {
  desktop.message({"Closing", "T", MessageIcon::critical, MessageButtons::ok});
  const Message question{"Sure?", "T", MessageIcon::information, MessageButtons::yesNo};
  EXPECT_EQ(desktop.message(question), MessageAnswer::no);
  EXPECT_EQ(facts.str(), R"({"message":{"icon":"critical","title":"T","text":"Closing"}})"
                         "\n"
                         R"({"question":{"icon":"information","title":"T","text":"Sure?","answer":"no"}})"
                         "\n");
}

TEST_F(Script, outsideFactsAndStrayBytesAreWritten) {
  desktop.tellEvent("UpdateOutlookSettings", {{"newTask", 1}, {"newProfile", "A\xFF"}});
  desktop.report({"P", "M", "F", "Overflow", 6, 0, ""});
  EXPECT_EQ(facts.str(),
            "{\"event\":\"UpdateOutlookSettings\",\"newTask\":1,\"newProfile\":\"A\xEF\xBF\xBD\"}\n"
            "{\"report\":{\"project\":\"P\",\"module\":\"M\",\"procedure\":\"F\",\"text\":\"Overflow\",\"number\":6,"
            "\"lineMark\":0,\"profile\":\"\"}}\n");
}

}  // namespace
}  // namespace tarnel::script
