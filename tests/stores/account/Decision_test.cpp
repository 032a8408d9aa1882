#include <gtest/gtest.h>

#include "Decision.h"
#include "UidMatches.h"

namespace tarnel::account {
namespace {

TEST(DecisionTest, bothSidesTogetherDecide) {
  constexpr const char* names[] = {"-",           "take",       "add",       "update",      "create", "merge",
                                   "removeThere", "removeHere", "bringBack", "createAgain", "forget"};
  std::string table;
  for (const Here here : {Here::none, Here::same, Here::changed, Here::removed, Here::created}) {
    for (const There there :
         {There::none, There::same, There::changed, There::removed, There::created, There::unproven})
      table += std::string(names[static_cast<int>(decide(here, there))]) + " ";
    table += "\n";
  }
  EXPECT_EQ(table,  // none, same, changed, removed, created, unproven there
            "- - add - add - \n"
            "- - take removeHere - - \n"
            "create update merge createAgain merge - \n"
            "forget removeThere bringBack forget bringBack - \n"
            "create merge merge create merge - \n");
}

TEST(DecisionTest, anItemIsRemovedThereOnlyWhenEverythingSaysSo) {
  // known, seenBefore, fullListing, listed, toldGone, sameState, probe
  struct {
    Sighting sighting;
    There there;
    bool probes;
  } const cases[] = {
      {{false, false, true, true, false, false, Probe::notAsked}, There::created, false},
      {{false, false, true, false, true, false, Probe::notAsked}, There::none, false},
      {{true, true, true, true, false, true, Probe::notAsked}, There::same, false},
      {{true, true, false, true, false, false, Probe::notAsked}, There::changed, false},
      {{true, true, false, false, false, false, Probe::notAsked}, There::same, false},  // no news
      {{true, true, true, false, false, false, Probe::notAsked}, There::unproven, true},
      {{true, true, true, false, false, false, Probe::unclear}, There::unproven, false},
      {{true, true, true, false, false, false, Probe::gone}, There::removed, false},
      {{true, true, false, false, true, false, Probe::gone}, There::removed, false},
      {{true, false, true, false, false, false, Probe::gone}, There::unproven, false},  // listed late
      {{true, true, true, false, false, true, Probe::found}, There::same, false},       // outside of its window
      {{true, true, true, false, false, false, Probe::found}, There::changed, false}};
  int number = 0;
  for (const auto& [sighting, there, probes] : cases) {
    EXPECT_EQ(static_cast<int>(whereabouts(sighting)), static_cast<int>(there)) << number;
    EXPECT_EQ(needsProbe(sighting), probes) << number++;
  }
}

TEST(DecisionTest, fewMayGoButNeverAll) {
  const std::tuple<std::size_t, std::size_t, bool> cases[] = {
      {0, 0, true},     {0, 5, true},    {1, 1, false},   {1, 2, true},     {10, 11, true},   {10, 10, false},
      {11, 100, false}, {11, 110, true}, {20, 200, true}, {21, 200, false}, {199, 200, false}};
  for (const auto& [going, known, may] : cases) EXPECT_EQ(mayGo(going, known), may) << going << " of " << known;
}

TEST(UidTest, uidsTellRenamedItemsAndDoubles) {
  const auto told = [](const std::vector<UidSighting>& known, const std::vector<UidSighting>& listed) {
    const UidMatches matches = matchByUid(known, listed);
    std::string text;
    for (const auto& [from, to] : matches.renamed) text += from + ">" + to + " ";
    for (const UidDouble& twice : matches.doubles) {
      text += twice.uid + "=" + twice.shown;
      for (const std::string& other : twice.others) text += "," + other;
      text += " ";
    }
    return text;
  };
  EXPECT_EQ(told({{"/a", "1", ""}, {"/b", "2", ""}}, {{"/b", "2", ""}, {"/c", "1", ""}, {"/d", "3", ""}}), "/a>/c ");
  EXPECT_EQ(told({{"/a", "1", ""}}, {{"/a", "1", "5"}, {"/b", "1", "7"}, {"/c", "1", "6"}}), "1=/b,/c,/a ");
  EXPECT_EQ(told({{"/b", "1", ""}}, {{"/a", "1", "5"}, {"/b", "1", "5"}}), "1=/b,/a ") << "the known one stays";
  EXPECT_EQ(told({{"/x", "1", ""}}, {{"/a", "1", "5"}, {"/b", "1", "7"}}), "/x>/b 1=/b,/a ");
  EXPECT_EQ(told({{"/x", "", ""}}, {{"/a", "", ""}, {"/b", "", ""}}), "") << "no UID is no UID";
}

}  // namespace
}  // namespace tarnel::account
