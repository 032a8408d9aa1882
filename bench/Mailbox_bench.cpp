#include <benchmark/benchmark.h>
#include <sqlite3.h>
#include <stdlib.h>

#include <filesystem>
#include <map>
#include <memory>
#include <string>

#include "IcsReader.h"
#include "MailboxFile.h"
#include "OutlookFactory.h"
#include "Redemption.h"

// What the mailbox costs. Ratios that must hold: filling the list against the raw loop at most 5, a search in 100,000
// items against one in 100 at most 2, a day of old series against a day of single items at most 3.
namespace {

using namespace tarnel;
using outlook::DefaultFolder;

struct FixedClock : Clock {
  Date now() const override { return Date::of(2026, 11, 19, 9, 10); }
};

// A mailbox in a folder of its own, with Outlook logged on to it.
class BenchMailbox {
 public:
  BenchMailbox() {
    std::string name = (std::filesystem::temp_directory_path() / "mailbox-bench-XXXXXX").string();
    folder_ = mkdtemp(name.data());
    mailbox::createMailbox(path());
    factory_ = std::make_unique<mailbox::OutlookFactory>(
        [](const std::string&) { return std::optional<std::filesystem::path>(); }, path(), Locale(), clock_);
    application_ = factory_->createApplication();
    application_->Session()->Logon();
  }
  ~BenchMailbox() { std::filesystem::remove_all(folder_); }

  std::filesystem::path path() const { return folder_ / "mail"; }
  outlook::ClassFactory& factory() { return *factory_; }
  std::shared_ptr<outlook::Items> items(DefaultFolder folder) {
    return application_->Session()->GetDefaultFolder(folder)->items();
  }
  void import(const std::string& components) {
    mailbox::Mailbox opened(path(), Locale(), clock_);
    mailbox::importIcsText(opened, "BEGIN:VCALENDAR\n" + components + "END:VCALENDAR\n", "bench");
  }

 private:
  FixedClock clock_;
  std::filesystem::path folder_;
  std::unique_ptr<mailbox::OutlookFactory> factory_;
  std::shared_ptr<outlook::Application> application_;
};

std::string guid(int i) {
  std::string digits = std::to_string(i);
  return "3F2504E0-4F89-11D3-9A0C-" + std::string(12 - digits.size(), '0') + digits;
}

std::string task(int i, bool done) {
  return "BEGIN:VTODO\nUID:t" + std::to_string(i) + "\nSUMMARY:Task number " + std::to_string(i) +
         "\nDESCRIPTION:Some notes on it\nSTATUS:" + (done ? "COMPLETED" : "NEEDS-ACTION") +
         "\nX-TARNEL-USER-PROPERTY;X-NAME=BrackwellTarnelGUID:" + guid(i) + "\nEND:VTODO\n";
}

BenchMailbox& tasks(int count, int openEvery) {
  static std::map<int, std::unique_ptr<BenchMailbox>> made;
  auto& mailbox = made[count];
  if (!mailbox) {
    mailbox = std::make_unique<BenchMailbox>();
    std::string components;
    for (int i = 0; i < count; ++i) components += task(i, i % openEvery != 0);
    mailbox->import(components);
  }
  return *mailbox;
}

// The wizard's own steps: restrict, count, and for each item its id, subject and link.
void fillOutlookList(benchmark::State& state) {
  BenchMailbox& mailbox = tasks(20000, 10);
  for (auto _ : state) {
    auto open = mailbox.items(DefaultFolder::tasks)->Restrict("[Complete] = false");
    const int count = open->Count();
    for (int i = 1; i <= count; ++i) {
      auto item = std::dynamic_pointer_cast<outlook::TaskItem>(open->Item(i));
      benchmark::DoNotOptimize(item->EntryID());
      benchmark::DoNotOptimize(item->subject());
      if (!item->UserProperties()->Item("BrackwellTarnelGUID")) continue;
      auto safe = mailbox.factory().createSafeTaskItem();
      safe->setItem(item);
      benchmark::DoNotOptimize(safe->UserProperties()->Item("BrackwellTarnelGUID")->Value());
    }
    state.counters["rows"] = count;
  }
}
BENCHMARK(fillOutlookList)->Unit(benchmark::kMillisecond);

// The same rows and columns from the engine alone, a property look-up for each row.
void fillRawLoop(benchmark::State& state) {
  sqlite3* database = nullptr;
  sqlite3_open(tasks(20000, 10).path().c_str(), &database);
  sqlite3_stmt *rows = nullptr, *property = nullptr;
  sqlite3_prepare_v2(database, "SELECT id, subject FROM items WHERE folder = 13 AND series IS NULL AND complete = 0",
                     -1, &rows, nullptr);
  sqlite3_prepare_v2(database,
                     "SELECT p.value FROM userProperties p JOIN names n ON n.id = p.name WHERE p.item = ? AND n.name = "
                     "'BrackwellTarnelGUID'",
                     -1, &property, nullptr);
  for (auto _ : state) {
    int count = 0;
    while (sqlite3_step(rows) == SQLITE_ROW) {
      benchmark::DoNotOptimize(std::string(reinterpret_cast<const char*>(sqlite3_column_text(rows, 1))));
      sqlite3_bind_int64(property, 1, sqlite3_column_int64(rows, 0));
      if (sqlite3_step(property) == SQLITE_ROW)
        benchmark::DoNotOptimize(std::string(reinterpret_cast<const char*>(sqlite3_column_text(property, 0))));
      sqlite3_reset(property);
      ++count;
    }
    sqlite3_reset(rows);
    state.counters["rows"] = count;
  }
  sqlite3_finalize(rows);
  sqlite3_finalize(property);
  sqlite3_close(database);
}
BENCHMARK(fillRawLoop)->Unit(benchmark::kMillisecond);

// The whole link walk for one task, as the transfer builds it again for each row.
void searchByGuid(benchmark::State& state) {
  const int count = static_cast<int>(state.range(0));
  BenchMailbox& mailbox = tasks(count, 1);
  int next = 0;
  for (auto _ : state) {
    auto items = mailbox.items(DefaultFolder::tasks);
    auto table = mailbox.factory().createMAPITable();
    table->setItem(items);
    auto safe = mailbox.factory().createSafeTaskItem();
    safe->setItem(std::dynamic_pointer_cast<outlook::TaskItem>(items->Item(1)));
    const auto tag =
        safe->GetIDsFromNames(outlook::mapi::publicStrings, "BrackwellTarnelGUID") | outlook::mapi::typeString8;
    auto& filter = table->Filter();
    filter.Clear();
    auto& both = filter.SetKind(outlook::mapi::RestrictionKind::conjunction);
    both.Add(outlook::mapi::RestrictionKind::exists).setUlPropTag(tag);
    auto& equal = both.Add(outlook::mapi::RestrictionKind::property);
    equal.setRelop(outlook::mapi::relopEqual);
    equal.setUlPropTag(tag);
    equal.setLpProp(guid(next = (next + 7919) % count));
    filter.Restrict();
    table->setColumns({outlook::mapi::entryId});
    if (!filter.FindFirst(true) || table->GetRow().empty() || filter.FindNext(true)) state.SkipWithError("not found");
  }
}
BENCHMARK(searchByGuid)->Arg(100)->Arg(100000)->Unit(benchmark::kMicrosecond);

// Both calendars have as many items on the day that is shown.
std::string event(int i, bool series) {
  const std::string day = std::to_string(14 + i % 7), hour = std::to_string(10 + i % 8);
  return "BEGIN:VEVENT\nUID:e" + std::to_string(i) + "\nSUMMARY:Meeting " + std::to_string(i) +
         "\nDTSTART:" + (series ? "201611" : "202611") + day + "T" + hour + "0000\nDURATION:PT30M\n" +
         (series ? "RRULE:FREQ=WEEKLY\n" : "") + "END:VEVENT\n";
}

void showDay(benchmark::State& state, bool series) {
  constexpr int count = 10000;
  static std::map<bool, std::unique_ptr<BenchMailbox>> made;
  auto& mailbox = made[series];
  if (!mailbox) {
    mailbox = std::make_unique<BenchMailbox>();
    std::string components;
    for (int i = 0; i < count; ++i) components += event(i, series);
    mailbox->import(components);
  }
  for (auto _ : state) {
    auto items = mailbox->items(DefaultFolder::calendar);
    items->Sort("[Start]");
    items->setIncludeRecurrences(true);
    auto day = items->Restrict("[Start] <= \"11/19/2026 11:59 PM\" AND [End] > \"11/19/2026 12:00 AM\"");
    int shown = 0;
    for (auto item = day->GetFirst(); item; item = day->GetNext(), ++shown) {
      auto each = std::dynamic_pointer_cast<outlook::AppointmentItem>(item);
      benchmark::DoNotOptimize(each->EntryID());
      benchmark::DoNotOptimize(each->Start());
      benchmark::DoNotOptimize(each->subject());
    }
    state.counters["shown"] = shown;
  }
}
BENCHMARK_CAPTURE(showDay, singleItems, false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(showDay, tenYearOldSeries, true)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
