#include <gtest/gtest.h>

#include "Failure.h"
#include "SSResizer.h"
#include "SSSplitter.h"
#include "SftTabs.h"
#include "ctDropDate.h"
#include "ctMDay.h"

namespace tarnel {
namespace {

TEST(SSSplitter, panesKeepTheirSharesWhenItIsResized) {
  SSSplitter splitter("splitTasks");
  Control left("paneAppt", 0), right("paneAppt", 3);
  splitter.Panes("LEFT").setContent(left);
  splitter.Panes("right").setContent(right);
  splitter.Move(0, 0, 4075, 1000);
  splitter.Panes("Left").setWidth(1000);
  splitter.Move(0, 0, 8075, 500);
  EXPECT_EQ(left.placement(), (Placement{0, 0, 2000, 500}));
  EXPECT_EQ(right.placement(), (Placement{2075, 0, 6000, 500}));
  splitter.Move(0, 0, 0, 0);
  splitter.Move(0, 0, 4075, 500);
  EXPECT_EQ(splitter.Panes("Left").Width(), 1000) << "no room at all doesn't lose the share";
  EXPECT_THROW(splitter.Panes("Middle"), Failure);
}

TEST(SSSplitter, dragStopsAtTheSmallestPaneAndEndsOnce) {
  SSSplitter splitter("splitTasks");
  splitter.Move(0, 0, 4075, 1000);
  int ends = 0;
  const Connection ended = splitter.SplitterEndDrag.connect([&] { ++ends; });
  splitter.drag(-50);
  EXPECT_EQ(splitter.Panes("Left").Width(), SSSplitter::smallestPane);
  splitter.drag(99999);
  EXPECT_EQ(splitter.Panes("Right").Width(), SSSplitter::smallestPane);
  splitter.Panes("Right").setWidth(1500);
  EXPECT_EQ(splitter.Panes("Left").Width(), 2500);
  EXPECT_EQ(ends, 2);
}

TEST(SSResizer, anchoredControlsFollowTheirEdgesUnlessToldNotTo) {
  Control pane("pane"), fills("fills"), corner("corner");
  pane.Move(0, 0, 1000, 1000);
  fills.Move(10, 10, 900, 900);
  corner.Move(800, 800, 100, 100);
  SSResizer resizer("SSResizer1", 6);
  resizer.attach(pane);
  resizer.anchor(fills, {.right = true, .bottom = true});
  resizer.anchor(corner, {.left = false, .top = false, .right = true, .bottom = true});
  std::string log;
  const Connection before = resizer.BeforeResize.connect([&](SSResizer&) { log += "before "; });
  const Connection complete = resizer.ResizeComplete.connect([&] { log += "complete "; });
  pane.Move(50, 50, 1000, 1000);
  pane.Move(50, 50, 1200, 900);
  EXPECT_EQ(fills.placement(), (Placement{10, 10, 1100, 800}));
  EXPECT_EQ(corner.placement(), (Placement{1000, 700, 100, 100}));
  EXPECT_EQ(log, "before complete ") << "once for each change of size";

  const Connection leaves = resizer.BeforeResize.connect([](SSResizer& which) { which.setRepositioning(false); });
  pane.Move(50, 50, 2000, 900);
  EXPECT_EQ(log, "before complete before complete ");
  EXPECT_EQ(fills.Width(), 1100);
}

TEST(SftTabs, disabledTabIsForCodeAlone) {
  SftTabs tabs("tabWiz", {"&Tasks", "&Appointments"});
  std::string log;
  const Connection switching = tabs.Switching.connect([&](std::size_t tab) { log += std::to_string(tab); });
  tabs.setTabEnabled(1, false);
  tabs.switchTo(1);
  tabs.setCurrent(0);
  EXPECT_EQ(log, "");
  tabs.setCurrent(1);
  EXPECT_EQ(log, "1");
  EXPECT_THROW(tabs.setCurrent(2), Failure);
  EXPECT_THROW(tabs.Caption(2), Failure);
}

TEST(ctDropDate, changeComesOnceADayAndForEachChoiceOfTheUser) {
  ctDropDate box("ctDeadline");
  int changes = 0;
  const Connection changed = box.Change.connect([&] { ++changes; });
  box.setDate(Date::of(2026, 11, 19, 8, 30));
  box.setDate(Date::of(2026, 11, 19, 23, 0));
  EXPECT_EQ(box.Date(), Date::of(2026, 11, 19));
  EXPECT_EQ(changes, 1);
  box.choose(Date::of(2026, 11, 19, 7, 0));
  EXPECT_EQ(changes, 2) << "what the user chooses counts, even the same day";
}

TEST(ctMDay, rowsAndPicturesAreNumberedFromOneWithoutGaps) {
  ctMDay day("ctDaySked", 0);
  EXPECT_EQ(day.AppAdd(0, 60, 46345, "a", "k"), 1);
  EXPECT_EQ(day.AppAdd(60, 120, 46345, "b", "k"), 2);
  day.setAppTag(2, "tag of b");
  day.AppRemove(1);
  EXPECT_EQ(day.AppCount(), 1);
  EXPECT_EQ(day.AppTag(1), "tag of b");
  for (const std::int16_t index : std::initializer_list<std::int16_t>{-1, 0, 2}) {
    EXPECT_THROW(day.AppTag(index), Failure);
    EXPECT_THROW(day.AppRemove(index), Failure);
    EXPECT_THROW(day.select(index), Failure);
    EXPECT_THROW(day.setAppMarkImage(index, 3), Failure);
  }
  EXPECT_THROW(day.setTimeScale(5), Failure);
  day.AddImage("OUTLOOK");
  day.setUseImages(true);
  EXPECT_EQ(day.image(1), "OUTLOOK");
  EXPECT_EQ(day.image(0) + day.image(2), "");
}

}  // namespace
}  // namespace tarnel
