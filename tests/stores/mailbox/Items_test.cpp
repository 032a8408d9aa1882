#include "ItemRecord.h"
#include "MailboxFixture.h"

namespace tarnel::mailbox {
namespace {

using outlook::PropertyType;
using outlook::TaskStatus;

struct ItemsTest : MailboxTest {
  std::shared_ptr<outlook::Application> outlook_ = loggedOn();
};

TEST_F(ItemsTest, savedTaskIsFoundByItsIdWithItsDueDayAndProperties) {
  auto task = aTask(*outlook_, "Pay \"rent\" & gas; 100 %");
  EXPECT_EQ(task->EntryID(), "");
  task->setDueDate(Date::of(2026, 12, 1, 17, 30));
  task->UserProperties()->Add(linkName, PropertyType::text)->setValue("G-1");
  task->Save();

  const std::string id = task->EntryID();
  task.reset();
  outlook_ = loggedOn();
  auto found = std::dynamic_pointer_cast<outlook::TaskItem>(
      outlook_->Session()->GetItemFromID(id, outlook_->Session()->GetDefaultFolder(tasksFolder)->StoreID()));
  ASSERT_TRUE(found);
  EXPECT_EQ(found->EntryID(), id);
  EXPECT_EQ(found->subject(), "Pay \"rent\" & gas; 100 %");
  EXPECT_EQ(found->dueDate(), Date::of(2026, 12, 1));
  EXPECT_EQ(found->ParentName(), "Tasks");
  EXPECT_EQ(found->UserProperties()->Item("brackwelltarnelguid")->Value(), Variant("G-1"));
  EXPECT_FALSE(found->UserProperties()->Item("Other"));
  found->UserProperties()->Add("brackwelltarnelguid", PropertyType::text)->setValue("G-2");
  found->Save();
  outlook_ = loggedOn();
  EXPECT_EQ(outlook_->Session()->GetItemFromID(id, "")->UserProperties()->Item(linkName)->Value(), Variant("G-2"));
}

TEST_F(ItemsTest, completionFollowsTheStatus) {
  auto task = aTask(*outlook_, "a");
  task->setStatus(TaskStatus::complete);
  task->Save();
  auto mailbox = openMailbox();
  const ItemRecord done = *findItem(mailbox->store, 1);
  EXPECT_EQ(done.percentComplete, 100);
  EXPECT_EQ(dateOf(done.dateCompleted), Date::of(2026, 11, 19));
  task->setStatus(TaskStatus::inProgress);
  task->Save();
  const ItemRecord open = *findItem(mailbox->store, 1);
  EXPECT_EQ(open.percentComplete, 0);
  EXPECT_EQ(open.dateCompleted, noDate);
}

TEST_F(ItemsTest, deleteMovesToDeletedItemsAndFromThereForGood) {
  auto task = aTask(*outlook_, "a");
  task->Save();
  const std::string id = task->EntryID();
  task->Delete();
  EXPECT_EQ(task->ParentName(), "Deleted Items");
  EXPECT_TRUE(contains(failureOf([&] { task->Save(); }), "440: The item \"a\" can't be saved"));
  EXPECT_EQ(itemsOf(*outlook_, tasksFolder)->Count(), 0);

  EXPECT_TRUE(contains(failureOf([&] { task->setSubject("b"); }), "can't be changed"));
  EXPECT_TRUE(contains(failureOf([&] { task->Delete(); }), "can't be deleted"));
  auto deleted = outlook_->Session()->GetItemFromID(id, "");
  EXPECT_EQ(deleted->ParentName(), "Deleted Items");
  EXPECT_EQ(deleted->EntryID(), id);
  auto other = outlook_->Session()->GetItemFromID(id, "");
  deleted->Delete();
  EXPECT_TRUE(contains(failureOf([&] { outlook_->Session()->GetItemFromID(id, ""); }), "440"));
  EXPECT_TRUE(contains(failureOf([&] { other->Save(); }), "can't be saved: it was moved or deleted"));
  EXPECT_TRUE(contains(failureOf([&] { other->Delete(); }), "can't be deleted: it was moved or deleted"));
  EXPECT_TRUE(contains(failureOf([&] { aTask(*outlook_, "n")->Delete(); }), "never saved"));
}

TEST_F(ItemsTest, saveWritesOnlyWhatWasSet) {
  aTask(*outlook_, "a")->Save();
  auto mine = std::dynamic_pointer_cast<outlook::TaskItem>(itemsOf(*outlook_, tasksFolder)->Item(1));
  auto theirs = itemsOf(*outlook_, tasksFolder)->Item(1);
  theirs->setSubject("b");
  theirs->Save();
  mine->setTotalWork(5);
  mine->Save();
  auto both = std::dynamic_pointer_cast<outlook::TaskItem>(itemsOf(*outlook_, tasksFolder)->Item(1));
  EXPECT_EQ(both->subject(), "b");
  EXPECT_EQ(both->TotalWork(), 5);
}

TEST_F(ItemsTest, valuesThatOutlookRefusesFailAndChangeNothing) {
  auto task = aTask(*outlook_, "a");
  EXPECT_TRUE(contains(failureOf([&] { task->setDueDate(Date{-1}); }), "440: The due date can't be set"));
  EXPECT_TRUE(contains(failureOf([&] { task->setDueDate(Date::of(4501, 1, 2)); }), "440"));
  EXPECT_TRUE(contains(failureOf([&] { task->setStatus(static_cast<TaskStatus>(7)); }), "440"));
  for (const int none : {-1, 3})
    EXPECT_TRUE(contains(failureOf([&] { task->setImportance(static_cast<outlook::Importance>(none)); }), "440"))
        << none;
  EXPECT_TRUE(contains(failureOf([&] { task->UserProperties()->Add("", PropertyType::text); }), "440"));
  EXPECT_TRUE(contains(failureOf([&] { outlook_->CreateItem(static_cast<outlook::ItemType>(2)); }), "5:"));
  EXPECT_EQ(task->dueDate(), Date::of(4501, 1, 1));
  EXPECT_EQ(task->Status(), TaskStatus::notStarted);

  auto appointment = anAppointment(*outlook_, "b", Date::of(2026, 11, 19, 10), 30);
  EXPECT_TRUE(contains(failureOf([&] { appointment->setEnd(Date::of(2026, 11, 19, 9)); }), "13:"));
  EXPECT_TRUE(contains(failureOf([&] { appointment->setDuration(-5); }), "13:"));
  appointment->setEnd(Date::of(2026, 11, 19, 10));
  EXPECT_EQ(appointment->Duration(), 0);
  appointment->setDuration(30);
  appointment->setStart(Date::of(2026, 11, 20, 8));
  EXPECT_EQ(appointment->end(), Date::of(2026, 11, 20, 8, 30));
  appointment->setEnd(Date::of(2026, 11, 20, 10));
  EXPECT_EQ(appointment->Duration(), 120);
}

TEST_F(ItemsTest, entryIdsOfOthersAndGarbageFail) {
  aTask(*outlook_, "a")->Save();
  const std::string id = itemsOf(*outlook_, tasksFolder)->Item(1)->EntryID();
  std::string foreign = id;
  foreign[0] = foreign[0] == 'A' ? 'B' : 'A';
  std::string gone = id;
  gone.back() = '7';
  for (const std::string& bad : {std::string(), std::string("Missing EntryID"), foreign, gone, id + "00", id + id})
    EXPECT_TRUE(contains(failureOf([&] { outlook_->Session()->GetItemFromID(bad, ""); }), "440: The item \"")) << bad;
  EXPECT_TRUE(contains(failureOf([&] { outlook_->Session()->GetItemFromID(id, "00"); }), "another mailbox"));
}

TEST_F(ItemsTest, collectionsStayTrueWhileTheyAreWalkedAndChanged) {
  for (int i = 0; i < 600; ++i) aTask(*outlook_, std::to_string(i))->Save();
  auto items = itemsOf(*outlook_, tasksFolder);
  ASSERT_EQ(items->Count(), 600);
  for (int i = 1; i <= 600; ++i) ASSERT_EQ(items->Item(i)->subject(), std::to_string(i - 1));
  EXPECT_EQ(items->Item(3)->subject(), "2");
  EXPECT_TRUE(contains(failureOf([&] { items->Item(601); }), "440: Array index out of bounds"));
  EXPECT_TRUE(contains(failureOf([&] { items->Item(0); }), "440"));

  // Deleting while walking forwards visits each one once.
  int seen = 0;
  for (auto item = items->GetFirst(); item; item = items->GetNext(), ++seen) item->Delete();
  EXPECT_EQ(seen, 600);
  EXPECT_EQ(items->Count(), 0);
  EXPECT_FALSE(items->GetFirst());
  EXPECT_FALSE(items->GetNext());
}

TEST_F(ItemsTest, sortGoesByThePropertyThenByCreation) {
  anAppointment(*outlook_, "late", Date::of(2026, 11, 19, 15), 30);
  anAppointment(*outlook_, "early", Date::of(2026, 11, 19, 8), 30);
  anAppointment(*outlook_, "late too", Date::of(2026, 11, 19, 15), 30);
  auto items = itemsOf(*outlook_, calendarFolder);
  EXPECT_EQ(subjects(*items), "late, early, late too");
  items->Sort("[start]");
  EXPECT_EQ(subjects(*items), "early, late, late too");
  EXPECT_EQ(items->Item(1)->subject(), "early");
  EXPECT_EQ(items->Item(3)->subject(), "late too");
  items->Sort("[Subject]");
  EXPECT_EQ(subjects(*items), "early, late, late too");
  EXPECT_TRUE(contains(failureOf([&] { items->Sort("[Nonsense]"); }), "440"));
}

TEST_F(ItemsTest, theTableFindsTheItemsOfOneFolderThatBearAProperty) {
  for (const char* guid : {"G-1", "G-2", "G-1", "G-1"}) {
    auto task = aTask(*outlook_, guid);
    task->UserProperties()->Add(linkName, PropertyType::text)->setValue(guid);
    task->Save();
  }
  auto items = itemsOf(*outlook_, tasksFolder);
  items->Item(4)->Delete();

  auto makers = factory();
  auto safe = makers.createSafeTaskItem();
  EXPECT_TRUE(contains(failureOf([&] { safe->body(); }), "91:"));
  safe->setItem(std::dynamic_pointer_cast<outlook::TaskItem>(items->Item(1)));
  const std::int32_t tag = safe->GetIDsFromNames(outlook::mapi::publicStrings, linkName) | outlook::mapi::typeString8;
  auto table = makers.createMAPITable();
  table->setItem(items);
  table->setColumns({outlook::mapi::entryId});
  auto& filter = table->Filter();
  const auto search = [&](const std::string& guid) {
    filter.Clear();
    auto& both = filter.SetKind(outlook::mapi::RestrictionKind::conjunction);
    both.Add(outlook::mapi::RestrictionKind::exists).setUlPropTag(tag);
    auto& equal = both.Add(outlook::mapi::RestrictionKind::property);
    equal.setRelop(outlook::mapi::relopEqual);
    equal.setUlPropTag(tag);
    equal.setLpProp(guid);
    filter.Restrict();
    return filter.FindFirst(true);
  };
  auto ids = makers.createMAPIUtils();
  EXPECT_FALSE(search("G-9"));
  EXPECT_TRUE(table->GetRow().empty());
  ASSERT_TRUE(search("G-1"));
  EXPECT_EQ(ids->HrArrayToString(table->GetRow().at(0)), items->Item(1)->EntryID());
  ASSERT_TRUE(filter.FindNext(true));
  EXPECT_EQ(ids->HrArrayToString(table->GetRow().at(0)), items->Item(3)->EntryID());
  // Gone between the find and the look at it.
  items->Item(3)->Delete();
  EXPECT_TRUE(table->GetRow().empty());
  EXPECT_FALSE(filter.FindNext(true));
  EXPECT_TRUE(contains(failureOf([&] { ids->HrArrayToString("text"); }), "13:"));
  EXPECT_TRUE(contains(failureOf([&] { safe->GetIDsFromNames("{0}", linkName); }), "440"));
}

}  // namespace
}  // namespace tarnel::mailbox
