#include "CStringBag.h"

#include <gtest/gtest.h>

#include <functional>

#include "FailureOf.h"

namespace tarnel::test {
namespace {

TEST(CStringBag, keepsEntriesInTheOrderOfWritingEachEndedByATab) {
  CStringBag bag;
  bag.WriteItem("imp", "3");
  bag.WriteItem("Diff", "a=b");
  EXPECT_EQ(bag.Contents(), "IMP=3\tDIFF=a=b\t");
  EXPECT_EQ(bag.ReadItem("IMP"), "3");
  EXPECT_EQ(bag.ReadItem("dIFF"), "a=b");
  EXPECT_EQ(bag.ReadItem("NONE"), "");
  bag.RemoveItem("NONE");
  bag.WriteItem("IMP", "");
  EXPECT_EQ(bag.ReadItem("IMP"), "");
  EXPECT_EQ(bag.Contents(), "DIFF=a=b\tIMP=\t") << "what is written again moves to the end";
}

TEST(CStringBag, lookupIsAPlainTextSearch) {
  const CStringBag bag("PROJECTKEY=abc\tNOTE=IMP=7\t");
  EXPECT_EQ(bag.ReadItem("KEY"), "abc");
  EXPECT_EQ(bag.ReadItem("IMP"), "7");
}

TEST(CStringBag, removesEveryPlaceOfTheFirstEntry) {
  CStringBag bag("A=1\tB=2\tA=1\tA=3\t");
  EXPECT_EQ(bag.ReadItem("A"), "1");
  bag.RemoveItem("a");
  EXPECT_EQ(bag.Contents(), "B=2\tA=3\t");
  bag.WriteItem("A", "4");
  EXPECT_EQ(bag.Contents(), "B=2\tA=4\t");
}

TEST(CStringBag, aTabInsideAValueCutsIt) {
  CStringBag bag;
  bag.WriteItem("NOTE", "one\ttwo");
  EXPECT_EQ(bag.ReadItem("NOTE"), "one");
}

TEST(CStringBag, anEntryWithoutItsTabFailsEveryOperation) {
  CStringBag bag("IMP=3");
  for (const auto& operation :
       {std::function<void()>([&] { bag.ReadItem("IMP"); }), std::function<void()>([&] { bag.RemoveItem("IMP"); }),
        std::function<void()>([&] { bag.WriteItem("IMP", "4"); })}) {
    const auto failure = thrownBy(operation);
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->number(), static_cast<std::int32_t>(0x80044719));
    EXPECT_EQ(failure->description(), "CStringBag component failure");
    EXPECT_EQ(failure->source(), "TarnelOutWizard.CStringBag");
  }
  EXPECT_EQ(bag.Contents(), "IMP=3");
}

}  // namespace
}  // namespace tarnel::test
