#include "Form.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>

#include "FakeDesktop.h"

namespace tarnel::test {
namespace {

class Told : public Form {
 public:
  explicit Told(std::string name = "frm") : Form(std::move(name), "Caption") {}
  std::string log;
  std::function<void()> onResize;
  std::function<void()> onUnload;

 protected:
  void Form_Load() override { log += "load "; }
  void Form_Resize() override {
    log += "resize ";
    if (onResize) onResize();
  }
  void Form_QueryUnload() override {
    log += "query ";
    if (onUnload) onUnload();
  }
};

TEST(Form, goesFromLoadToGone) {
  FakeDesktop desktop;
  Told form;
  form.Move(0, 0, 100, 100);
  form.load();
  form.load();
  EXPECT_FALSE(form.Visible());
  EXPECT_EQ(openForms(), std::vector<Form*>{&form});
  desktop.onModal = [](Form& shown) {
    EXPECT_TRUE(shown.Visible());
    shown.Move(5, 5, 100, 100);
    shown.setWidth(-7);
    shown.unload();
    shown.unload();
  };
  form.showModal(desktop);
  EXPECT_EQ(form.log, "load resize resize query ");
  EXPECT_EQ(form.placement(), (Placement{5, 5, 0, 100}));
  EXPECT_TRUE(openForms().empty());
}

TEST(Form, formThatWasUnloadedIsNotShown) {
  FakeDesktop desktop;
  Told form;
  form.showModal(desktop);
  EXPECT_EQ(form.log, "");
}

TEST(Form, unloadInsideItsOwnEventsRunsQueryUnloadOnce) {
  FakeDesktop desktop;
  Told form;
  form.onUnload = [&form] { form.unload(); };
  form.onResize = [&form] { form.unload(); };
  form.load();
  form.showModal(desktop);
  EXPECT_EQ(form.log, "load resize query ");
  EXPECT_FALSE(form.Visible());
}

TEST(Form, loadedFormsAreListedInOrderAndLeaveWhenDestroyed) {
  Told first("a");
  first.load();
  auto second = std::make_unique<Told>("b");
  second->load();
  const std::vector<Form*> walked = openForms();
  second.reset();
  EXPECT_EQ(walked.size(), 2U) << "the walker's copy stays";
  EXPECT_EQ(openForms(), std::vector<Form*>{&first});
}

TEST(Control, contentsAndContainerLetGoOfOneAnother) {
  Control panel("picWiz", 1);
  {
    Control inside("lbl");
    inside.setContainer(panel);
    auto moved = std::make_unique<Control>("box");
    inside.setContainer(*moved);
    EXPECT_TRUE(panel.contents().empty());
    moved.reset();
    EXPECT_EQ(inside.container(), nullptr);
    inside.setContainer(panel);
  }
  EXPECT_TRUE(panel.contents().empty());
  EXPECT_EQ(panel.fullName(), "picWiz(1)");
}

}  // namespace
}  // namespace tarnel::test
