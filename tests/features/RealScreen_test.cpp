#include <cstdlib>

#include "Story.h"

namespace tarnel::test {
namespace {

// The built wizard in a real window on a screen of its own, worked on by keyboard and mouse from outside.
struct RealScreen : Story {
  void SetUp() override {
    for (const char* program : {"Xvfb", "openbox", "xdotool"})
      if (std::system(("command -v " + std::string(program) + " >/dev/null").c_str()) != 0)
        GTEST_SKIP() << program << " is not installed; the window can't be driven from outside";
  }

  void openScreen() {
    screen_.emplace("exec Xvfb -displayfd 1 -screen 0 1280x1024x24 -nolisten tcp 2>/dev/null");
    const auto number = screen_->readLine();
    ASSERT_TRUE(number) << "Xvfb doesn't start";
    display_ = "export DISPLAY=:" + *number + " QT_QPA_PLATFORM=xcb; ";
    // The window manager answers before it manages windows; only its startup command tells that it does.
    windows_.emplace(display_ + "exec openbox --startup 'echo ready' 2>/dev/null");
    std::optional<std::string> told;
    do {
      told = windows_->readLine();
      ASSERT_TRUE(told) << "openbox doesn't start";
    } while (*told != "ready");
  }

  void openWizard() {
    ASSERT_NO_FATAL_FAILURE(openScreen());
    wizard_.emplace(display_ + run.shellCommand("wizard --database tasks.db --date 2026-11-19"));
    ASSERT_TRUE(comesTrue([this] {
      window_ = ask("search --onlyvisible --name '^Tarnel Outlook Wizard$'");
      return !window_.empty() && active() == window_;
    })) << "The wizard's window never had the keyboard";
  }
  // xdotool's answer without its line end; empty when it failed.
  std::string ask(const std::string& arguments) {
    ChildProcess tool(display_ + "exec xdotool " + arguments + " 2>/dev/null");
    return tool.readLine().value_or("");
  }
  void press(const std::string& keys) { ask("key --clearmodifiers " + keys); }
  std::string active() { return ask("getactivewindow"); }
  bool boxIsOpen() { return !active().empty() && active() != window_; }

  // Presses the last button of the bar under the left list, Copy/Update: the pointer comes from the bar's right end and
  // presses on its way until a box has opened, which lets no further press through.
  void pressCopyByMouse() {
    for (int x = windowWidth / 2 - 10; x > 0 && !boxIsOpen(); x -= 15)
      ask("mousemove --window " + window_ + " " + std::to_string(x) + " " + std::to_string(windowHeight - barHeight) +
          " click 1");
    EXPECT_TRUE(comesTrue([this] { return boxIsOpen(); }));
  }

  // Pixels: the inside of the window at its first opening, and from its lower edge up to the middle of the bar.
  static constexpr int windowWidth = 553;
  static constexpr int windowHeight = 369;
  static constexpr int barHeight = 43;
  std::optional<ChildProcess> screen_, windows_, wizard_;
  std::string display_, window_;
};

TEST_F(RealScreen, rowsAreCheckedCopiedAndTheWizardClosedByKeyboardAndMouse) {
  addTask("A", "First", {{"tskPossPoints", "9"}});
  addTask("B", "Second", {{"tskPossPoints", "5"}});
  addTask("C", "Third", {{"tskPossPoints", "1"}});
  ASSERT_NO_FATAL_FAILURE(openWizard());
  press("Tab Tab Tab Home space Down Down space");
  pressCopyByMouse();
  EXPECT_EQ(mailbox(), "Tasks|First|0|A\nTasks|Third|0|C\n");
  EXPECT_EQ(rows("SELECT tskGUIDID, tskOutEntityID FROM TASKS ORDER BY tskGUIDID"), "A|A\nB|-\nC|C\n");
  press("Return");
  ASSERT_TRUE(comesTrue([this] { return active() == window_; }));
  press("alt+d");
  ASSERT_TRUE(comesTrue([this] { return wizard_->exitCode().has_value(); }));
  EXPECT_EQ(wizard_->exitCode(), 0);
  EXPECT_EQ(wizard_->readLine(), "event: CloseTheWizard");
  EXPECT_EQ(rows("SELECT tskStatus FROM TASKS"), "3\n3\n3\n");
}

}  // namespace
}  // namespace tarnel::test
