#include "ctMDay.h"

#include <gtest/gtest.h>

#include "Failure.h"

namespace tarnel {
namespace {

TEST(ctMDay, indexesStartAtOneAndMoveDownBehindARemoval) {
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
}

TEST(ctMDay, deselectedAppointmentIsNotSelected) {
  ctMDay day("ctDaySked", 0);
  day.AppAdd(0, 60, 46345, "a", "k");
  std::string log;
  const Connection pre = day.AppPreSelect.connect([&](std::int16_t) {
    log += "pre ";
    if (log == "pre ") day.AppDeselect();
  });
  const Connection select = day.AppSelect.connect([&](std::int16_t index) { log += std::to_string(index); });
  day.select(1);
  day.select(1);
  EXPECT_EQ(log, "pre pre 1");
}

TEST(ctMDay, rowLengthFollowsScaleOrCustomScale) {
  ctMDay day("ctDaySked", 0);
  day.setTimeScale(3);
  EXPECT_EQ(day.minutesPerRow(), 30);
  day.setCustomScale(20);
  EXPECT_EQ(day.minutesPerRow(), 30);
  day.setUseCustomScale(1);
  EXPECT_EQ(day.minutesPerRow(), 20);
  EXPECT_THROW(day.setTimeScale(5), Failure);
}

TEST(ctMDay, picturesAreNumberedFromOneAndNeedTheSwitch) {
  ctMDay day("ctDaySked", 0);
  day.AddImage("OUTLOOK");
  EXPECT_EQ(day.image(1), "");
  day.setUseImages(true);
  EXPECT_EQ(day.image(1), "OUTLOOK");
  EXPECT_EQ(day.image(0) + day.image(2), "");
}

}  // namespace
}  // namespace tarnel
