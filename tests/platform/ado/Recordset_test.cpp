#include "Recordset.h"

#include <gtest/gtest.h>

#include "Conversions.h"
#include "FailureOf.h"
#include "TaskDatabase.h"

namespace tarnel::ado {
namespace {

using test::failureOf;
using test::openBatch;

struct RecordsetTest : testing::Test {
  RecordsetTest() {
    database.addTask("A-1", "Pay rent");
    database.addTask("B-2", "pack");
    database.addTask("C-3", "Call");
  }

  void open(const std::string& statement) { openBatch(rows, database, statement); }
  void openAll() { open("SELECT * FROM TASKS ORDER BY tskGUIDID"); }
  void set(std::string_view column, const Variant& value) { rows.Fields(column).setValue(value); }
  Variant get(std::string_view column) { return rows.Fields(column).Value(); }
  // The keys from the first row on.
  std::string walk() {
    std::string keys;
    if (rows.RecordCount() == 0) return keys;
    for (rows.MoveFirst(); !rows.atEOF(); rows.MoveNext()) keys += toText(get("tskGUIDID")) + " ";
    return keys;
  }

  test::TaskDatabase database;
  Recordset rows;
};

TEST_F(RecordsetTest, walksFromTheFirstRowToTheEndAndFailsThereOrWhereThereIsNone) {
  openAll();
  EXPECT_EQ(rows.AbsolutePosition(), 1);
  EXPECT_EQ(walk(), "A-1 B-2 C-3 ");
  EXPECT_TRUE(rows.atEOF());
  EXPECT_EQ(rows.AbsolutePosition(), -3);
  EXPECT_EQ(failureOf([&] { rows.MoveNext(); }), failure::noCurrentRecord);
  EXPECT_EQ(failureOf([&] { get("tskDesc"); }), failure::noCurrentRecord);
  EXPECT_EQ(failureOf([&] { set("tskDesc", "x"); }), failure::noCurrentRecord);
  rows.Close();
  open("SELECT * FROM TASKS WHERE tskGUIDID = 'none'");
  EXPECT_TRUE(rows.atBOF() && rows.atEOF());
  EXPECT_EQ(failureOf([&] { rows.MoveFirst(); }), failure::noCurrentRecord);
  rows.Find("tskGUIDID", "A-1");
  EXPECT_TRUE(rows.atEOF());
}

TEST_F(RecordsetTest, aClosedOneRefusesEverythingAndAnOpenOneASecondOpen) {
  EXPECT_EQ(failureOf([&] { rows.MoveFirst(); }), failure::objectClosed);
  EXPECT_EQ(failureOf([&] { rows.Close(); }), failure::objectClosed);
  EXPECT_EQ(failureOf([&] { rows.Open(database.provider, "SELECT * FROM TASKS", ""); }), failure::noConnection);
  EXPECT_EQ(rows.state(), State::closed);
  openAll();
  EXPECT_EQ(failureOf([&] { openAll(); }), failure::objectOpen);
  EXPECT_EQ(failureOf([&] { rows.setLockType(LockType::readOnly); }), failure::objectOpen);
  rows.Close();
  EXPECT_EQ(rows.state(), State::closed);
}

TEST_F(RecordsetTest, findLooksFromTheFirstRowAndLeavesAtTheEndWhenThereIsNone) {
  openAll();
  rows.Find("tskGUIDID", "C-3");
  EXPECT_EQ(rows.AbsolutePosition(), 3);
  rows.Find("tskGUIDID", "c-3");  // keys are told apart by case, and texts are not
  EXPECT_TRUE(rows.atEOF());
  rows.Find("tskStatus", 3);
  EXPECT_EQ(rows.AbsolutePosition(), 1);
  rows.Find("tskGUIDID", "D-4");
  EXPECT_TRUE(rows.atEOF());
  rows.Find("tskOUTEntityID", Null{});
  EXPECT_TRUE(rows.atEOF());
  EXPECT_EQ(failureOf([&] { rows.Find("tskNothing", 1); }), failure::noSuchItem);
}

TEST_F(RecordsetTest, findFollowsValuesThatChangeAndRowsThatCome) {
  openAll();
  rows.Find("tskDesc", "Call");
  set("tskDesc", "PACK");
  rows.Find("tskDesc", "Call");
  EXPECT_TRUE(rows.atEOF());
  rows.Find("tskDesc", "pack");
  EXPECT_EQ(rows.AbsolutePosition(), 2) << "the first of two";
  rows.AddNew();
  set("tskGUIDID", "D-4");
  set("tskDesc", "New one");
  rows.UpdateBatch();
  rows.MoveFirst();
  rows.Find("tskDesc", "new ONE");
  EXPECT_EQ(rows.AbsolutePosition(), 4);
}

TEST_F(RecordsetTest, updateBatchWritesPendingRowsAloneAndUpdateKeeps) {
  openAll();
  set("tskDesc", "Rent paid");
  rows.Update();
  rows.MoveNext();
  EXPECT_EQ(database.describe("SELECT tskDesc FROM TASKS WHERE tskGUIDID='A-1'"), "Pay rent\n");
  database.run("UPDATE TASKS SET tskDesc = 'elsewhere' WHERE tskGUIDID = 'C-3'");
  rows.UpdateBatch();
  EXPECT_EQ(database.describe("SELECT tskDesc FROM TASKS ORDER BY tskGUIDID"), "Rent paid\npack\nelsewhere\n");
}

TEST_F(RecordsetTest, anOptimisticOneWritesWithUpdateAndWhenItLeavesTheRow) {
  rows.Open(database.provider, "SELECT * FROM TASKS ORDER BY tskGUIDID", database.connect(), CursorType::fixed,
            LockType::pessimistic);
  set("tskDesc", "one");
  rows.Update();
  rows.MoveNext();
  set("tskDesc", "two");
  rows.MoveNext();
  set("tskDesc", "three");
  EXPECT_EQ(database.describe("SELECT tskDesc FROM TASKS ORDER BY tskGUIDID"), "one\ntwo\nCall\n");
}

TEST_F(RecordsetTest, aReadOnlyOneRefusesChanges) {
  rows.Open(database.provider, "SELECT * FROM TASKS", database.connect());
  EXPECT_EQ(failureOf([&] { set("tskDesc", "x"); }), failure::notSupported);
  EXPECT_EQ(failureOf([&] { rows.AddNew(); }), failure::notSupported);
  rows.Close();
  open("SELECT count(*) AS n, max(tskDesc) AS last FROM TASKS");
  EXPECT_EQ(failureOf([&] { set("n", 1); }), failure::notSupported);
}

TEST_F(RecordsetTest, aConflictWritesNothingAndLeavesAllRowsPending) {
  openAll();
  set("tskDesc", "mine");
  rows.MoveNext();
  set("tskDesc", "mine too");
  database.run("UPDATE TASKS SET tskDesc = 'PACK' WHERE tskGUIDID = 'B-2'");  // another one by its case alone
  EXPECT_EQ(failureOf([&] { rows.UpdateBatch(); }), failure::writeConflict);
  EXPECT_EQ(database.describe("SELECT tskDesc FROM TASKS ORDER BY tskGUIDID"), "Pay rent\nPACK\nCall\n");
  EXPECT_EQ(get("tskDesc"), Variant("mine too"));

  rows.Resync(Affect::all, ResyncValues::underlying);
  EXPECT_EQ(get("tskDesc"), Variant("mine too"));
  rows.UpdateBatch();
  EXPECT_EQ(database.describe("SELECT tskDesc FROM TASKS ORDER BY tskGUIDID"), "mine\nmine too\nCall\n");
}

TEST_F(RecordsetTest, aRowThatIsGoneOrReplacedUnderItsIdIsAConflict) {
  openAll();
  rows.Find("tskGUIDID", "C-3");
  set("tskOUTEntityID", "C-3");
  database.run("DELETE FROM TASKS WHERE tskGUIDID = 'C-3'");
  EXPECT_EQ(failureOf([&] { rows.UpdateBatch(); }), failure::writeConflict);
  database.addTask("D-4");  // takes the engine's free row id
  EXPECT_EQ(failureOf([&] { rows.UpdateBatch(); }), failure::writeConflict);
  EXPECT_EQ(database.describe("SELECT tskOUTEntityID FROM TASKS WHERE tskGUIDID = 'D-4'"), "-\n");
}

TEST_F(RecordsetTest, aChangeElsewhereInAnotherColumnIsNoConflict) {
  openAll();
  set("tskDesc", "mine");
  database.run("UPDATE TASKS SET tskImp = 4 WHERE tskGUIDID = 'A-1'");
  rows.UpdateBatch();
  EXPECT_EQ(get("tskImp"), Variant(4)) << "the written row was read back";
}

TEST_F(RecordsetTest, columnsAreFoundInAnyCaseAndThoseOfOneOriginChangeTogether) {
  open("SELECT Tasks.tskStatus, Tasks.tskDesc, Tasks.tskStatus from TASKS WHERE tskGUIDID = 'A-1'");
  ASSERT_EQ(rows.fieldCount(), 3U);
  EXPECT_EQ(rows.Fields("TSKdesc").Name(), "tskDesc");
  EXPECT_EQ(failureOf([&] { rows.Fields("tskNothing"); }), failure::noSuchItem);
  EXPECT_EQ(failureOf([&] { rows.Fields(3); }), failure::noSuchItem);
  rows.Fields(2).setValue(0);
  EXPECT_EQ(rows.Fields(0).Value(), Variant(0));
  rows.Fields("tskStatus").setValue(1);
  EXPECT_EQ(rows.Fields(2).Value(), Variant(1));
  rows.UpdateBatch();
  EXPECT_EQ(rows.Fields(2).Value(), Variant(1));
  EXPECT_EQ(database.describe("SELECT tskStatus FROM TASKS WHERE tskGUIDID = 'A-1'"), "1\n");
  rows.Fields(2).setValue(2);
  rows.UpdateBatch();
  EXPECT_EQ(database.describe("SELECT tskStatus FROM TASKS WHERE tskGUIDID = 'A-1'"), "2\n");
}

TEST_F(RecordsetTest, valuesAreKeptAsTheirColumnsHoldThem) {
  open("SELECT * FROM TASKS WHERE tskGUIDID = 'A-1'");
  set("tskDesc", 0.45F);
  set("tskImp", "2");
  set("tskCurrent", 0);
  set("tskDeadline", "2026-11-19 08:30:00");
  set("tskTimeNeeded", 2.5);
  set("tskOUTEntityID", Null{});
  const auto check = [&] {
    EXPECT_EQ(get("tskDesc"), Variant("0.45"));
    EXPECT_EQ(get("tskImp"), Variant(2));
    EXPECT_EQ(get("tskCurrent"), Variant(false));
    EXPECT_EQ(get("tskDeadline"), Variant(Date::of(2026, 11, 19, 8, 30)));
    EXPECT_EQ(get("tskTimeNeeded"), Variant(2));
    EXPECT_TRUE(get("tskOUTEntityID").isNull());
  };
  check();
  rows.UpdateBatch();
  check();
  rows.Requery();
  check();
  EXPECT_EQ(failureOf([&] { set("tskImp", "high"); }), failure::typeMismatch);
}

TEST_F(RecordsetTest, aNewRowGoesInWithTheDatabasesDefaults) {
  openAll();
  rows.AddNew();
  EXPECT_TRUE(get("tskStatus").isNull());
  EXPECT_EQ(rows.RecordCount(), 4);
  set("tskGUIDID", "D-4");
  rows.UpdateBatch(Affect::allChapters);
  EXPECT_EQ(get("tskStatus"), Variant(3));
  set("tskDesc", "named later");
  rows.UpdateBatch();
  EXPECT_EQ(database.describe("SELECT tskDesc, tskCurrent FROM TASKS WHERE tskGUIDID = 'D-4'"), "named later|False\n");
}

TEST_F(RecordsetTest, aNewRowThatTheDatabaseRefusesStaysPendingWithTheOthers) {
  openAll();
  set("tskDesc", "changed");
  rows.AddNew();
  set("tskGUIDID", "A-1");
  EXPECT_NE(failureOf([&] { rows.UpdateBatch(); }), 0);
  EXPECT_EQ(database.describe("SELECT tskDesc FROM TASKS ORDER BY tskGUIDID"), "Pay rent\npack\nCall\n");
  set("tskGUIDID", "E-5");
  rows.UpdateBatch();
  EXPECT_EQ(database.describe("SELECT tskGUIDID FROM TASKS WHERE tskDesc = 'changed' OR tskGUIDID = 'E-5' ORDER BY 1"),
            "A-1\nE-5\n");
}

TEST_F(RecordsetTest, sortAndFilterChooseWhatIsWalked) {
  openAll();
  rows.setSort("tskDesc DESC, tskGUIDID");
  EXPECT_EQ(walk(), "A-1 B-2 C-3 ");
  rows.setSort("tskdesc");
  EXPECT_EQ(walk(), "C-3 B-2 A-1 ");
  rows.Find("tskStatus", 3);
  EXPECT_EQ(toText(get("tskGUIDID")), "C-3");
  rows.setFilter("tskDesc >= 'PA' AND tskCurrent = True AND tskDeadline = Null");
  EXPECT_EQ(walk(), "B-2 A-1 ");
  EXPECT_EQ(rows.RecordCount(), 2);
  rows.Find("tskGUIDID", "C-3");
  EXPECT_TRUE(rows.atEOF());
  rows.Requery();
  EXPECT_EQ(walk(), "B-2 A-1 ");
  rows.setFilter("");
  rows.setSort("");
  EXPECT_EQ(walk(), "A-1 B-2 C-3 ");
  rows.setFilter("tskDifficulty < 0.5");
  EXPECT_EQ(walk(), "A-1 B-2 C-3 ") << "the number isn't rounded as the column would";
  rows.Find("tskDifficulty", 0.5);
  EXPECT_TRUE(rows.atEOF());
  rows.Close();
  database.run("UPDATE TASKS SET tskDeadline = #11/19/2026 08:30:00#, tskTimeNeeded = -5 WHERE tskGUIDID = 'B-2'");
  openAll();
  rows.setFilter("tskDeadline > #11/19/2026# and tskDeadline<#11/20/2026#");
  EXPECT_EQ(walk(), "B-2 ");
  rows.setFilter("tskTimeNeeded <= -5");
  EXPECT_EQ(walk(), "B-2 ");
  rows.setFilter("tskTimeNeeded <> -5");
  EXPECT_EQ(walk(), "A-1 C-3 ");
}

TEST_F(RecordsetTest, unreadableSortsAndFiltersFailAndLeaveTheOldOne) {
  openAll();
  rows.setFilter("tskGUIDID = 'B-2'");
  for (const char* text : {"tskDesc", "tskDesc = ", "tskDesc LIKE 'x'", "tskDesc = 'x", "tskDesc = 'x' OR tskImp = 1",
                           "tskDesc = 'x' AND", "tskDeadline = #13/45/2026#", "tskDesc = word"})
    EXPECT_EQ(failureOf([&] { rows.setFilter(text); }), failure::invalidArgument) << text;
  EXPECT_EQ(failureOf([&] { rows.setFilter("nothing = 1"); }), failure::noSuchItem);
  for (const char* text : {"tskDesc up", "tskDesc,", "= tskDesc"})
    EXPECT_EQ(failureOf([&] { rows.setSort(text); }), failure::invalidArgument) << text;
  EXPECT_EQ(walk(), "B-2 ");
}

TEST_F(RecordsetTest, resyncReadsChangesAndKeepsRowsThatAreGone) {
  openAll();
  set("tskDesc", "dropped");
  database.run("UPDATE TASKS SET tskDesc = 'theirs', tskImp = 3 WHERE tskGUIDID = 'A-1'");
  database.run("DELETE FROM TASKS WHERE tskGUIDID = 'C-3'");
  database.addTask("D-4");  // takes the engine's free row id
  rows.Resync();
  EXPECT_EQ(get("tskDesc"), Variant("theirs"));
  EXPECT_EQ(get("tskImp"), Variant(3));
  EXPECT_EQ(walk(), "A-1 B-2 C-3 ");
  rows.Requery();
  EXPECT_EQ(walk(), "A-1 B-2 D-4 ");
}

TEST_F(RecordsetTest, aDisconnectedOneKeepsItsRowsAndWritesNoMore) {
  openAll();
  rows.disconnect();
  EXPECT_EQ(walk(), "A-1 B-2 C-3 ");
  rows.MoveFirst();
  set("tskDesc", "alone");
  EXPECT_EQ(failureOf([&] { rows.UpdateBatch(); }), failure::noConnection);
  EXPECT_EQ(failureOf([&] { rows.Requery(); }), failure::noConnection);
  EXPECT_EQ(get("tskDesc"), Variant("alone"));
}

}  // namespace
}  // namespace tarnel::ado
