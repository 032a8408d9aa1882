#include "DemoContents.h"

#include <algorithm>
#include <string_view>

namespace tarnel::host {
namespace {

enum Project : std::size_t { house, launch, personal };
constexpr const char* projectNames[] = {"House & Garden", "Spring Product Launch", "Personal"};

enum Status { done = 0, inProgress = 1, waiting = 2, notStarted = 3 };
constexpr int none = 9999;  // days: no such date

struct TaskText {
  Project project;
  const char* description;
  const char* notes;
  Status status;
  bool current;
  int deadline;  // days from today, as the dates below
  int created;
  int finished;
  int importance;
  int difficulty;
  int minutesNeeded;
  int minutesSpent;
  int points;
  bool hasChecklist;
  bool linked;
  const char* keywords;  // parted by ";"
};

constexpr TaskText taskTexts[] = {
    {house, "Repair the garden fence", "Two posts are rotten. Boards are 180 cm.", notStarted, true, 5, -20, none, 3, 3,
     240, 0, 85, true, false, "outdoor"},
    {house, "Sow tomatoes & basil", "Seeds are in the blue tin.", notStarted, true, 2, -6, none, 2, 0, 45, 0, 42, false,
     false, "outdoor"},
    {house, "Renew the home insurance", "Compare with last year's offer first.", inProgress, true, 9, -30, none, 4, 2,
     90, 30, 80, false, true, "money"},
    {house, "Clean the gutters", "", notStarted, false, 21, -12, none, 2, 2, 120, 0, 50, false, false, "outdoor"},
    {house, "Paint the hallway", "Colour: warm white. Needs two coats.", notStarted, false, none, -45, none, 1, 2, 600,
     0, 45, true, false, ""},
    {house, "Have the boiler serviced", "The fitter calls back with a date.", waiting, true, 14, -9, none, 3, 0, 60, 10,
     47, false, true, "waiting"},
    {house, "Order firewood", "", done, false, -10, -40, -12, 2, 0, 15, 20, 32, false, false, "money"},
    {house, "Fix the dripping kitchen tap", "", done, false, none, -15, -4, 2, 2, 30, 50, 40, false, true, ""},
    {house, "Sort out the shed", "Keep: mower, ladder, bicycle tools.", notStarted, false, none, -60, none, 0, 1, 480,
     0, 35, true, false, "outdoor"},
    {house, "Plan the new patio", "Measure, sketch, ask for three offers.", notStarted, false, 60, -18, none, 3, 4, 900,
     0, 85, true, false, "outdoor;money"},
    {launch, "Write the launch plan", "Chapters: audience, channels, budget, dates.", inProgress, true, 1, -25, none, 4,
     3, 480, 210, 100, true, true, "writing"},
    {launch, "Agree on the price list", "Sales wants an answer before the fair.", waiting, true, 3, -14, none, 4, 2, 60,
     25, 70, false, true, "waiting;money"},
    {launch, "Draft the press release", "", notStarted, true, 4, -5, none, 3, 2, 150, 0, 75, false, false, "writing"},
    {launch, "Book the stand at the spring fair", "", done, false, -20, -50, -22, 3, 1, 60, 45, 50, false, true,
     "money"},
    {launch, "Collect customer quotes", "Ask at least five customers from different trades.", inProgress, false, 12,
     -16, none, 2, 2, 180, 60, 65, true, false, "writing"},
    {launch, "Film the product tour", "Script first. Book the small studio.", notStarted, false, 18, -8, none, 3, 4,
     720, 0, 85, true, false, ""},
    {launch, "Test the web shop's checkout", "Cards, invoice, voucher, abroad.", notStarted, true, 6, -3, none, 4, 3,
     240, 0, 100, true, false, ""},
    {launch, "Translate the brochure", "The agency needs about a week.", waiting, false, 16, -11, none, 2, 1, 30, 10,
     35, false, false, "waiting;writing"},
    {launch, "Train the support team", "", notStarted, false, 20, -7, none, 3, 3, 300, 0, 70, false, false, ""},
    {launch, "Answer the distributor's questions", "", done, false, -2, -9, -3, 3, 1, 45, 40, 50, false, false,
     "writing"},
    {launch, "Review launch risks", "What if the parts come late?", notStarted, false, 8, -4, none, 3, 3, 200, 0, 70,
     false, false, ""},
    {launch, "Send invitations to the preview", "", inProgress, true, 2, -10, none, 3, 0, 90, 30, 57, false, true, ""},
    {personal, "File the tax return", "Receipts are in the grey folder.", inProgress, true, 25, -35, none, 4, 4, 360,
     120, 110, true, true, "money"},
    {personal, "Dentist: make an appointment", "", notStarted, true, 7, -2, none, 2, 0, 10, 0, 37, false, false,
     "health"},
    {personal, "Call Aunt Clara", "Her birthday is on Sunday.", notStarted, true, 3, -1, none, 3, 0, 20, 0, 57, false,
     false, "family"},
    {personal, "Renew the passport", "Two photographs, the old passport, the fee.", notStarted, false, 40, -22, none, 3,
     1, 75, 0, 55, true, false, ""},
    {personal, "Read \"The Art of Gardening\"", "", inProgress, false, none, -50, none, 0, 1, 500, 180, 30, false,
     false, ""},
    {personal, "Pay the gym membership", "", done, false, -5, -12, -6, 1, 0, 10, 5, 17, false, false, "health;money"},
    {personal, "Learn the new guitar piece", "Bars 1 to 32 by heart, then the coda.", inProgress, false, none, -33,
     none, 1, 4, 600, 240, 55, false, false, ""},
    {personal, "Sell the old bicycle", "Photographs are on the phone.", notStarted, false, none, -19, none, 1, 1, 60, 0,
     25, false, false, "money"},
    {personal, "Choose a present for Tom & Lena", "", notStarted, true, 10, -3, none, 2, 1, 60, 0, 35, false, false,
     "family"},
};

struct AppointmentText {
  std::size_t task;  // place in taskTexts
  int day;           // days from today
  int start;         // minutes from midnight
  int end;
  bool linked;
};

constexpr AppointmentText appointmentTexts[] = {
    {10, 0, 540, 660, true},  {1, 0, 1050, 1095, false}, {16, 0, 780, 900, false},  {21, 0, 690, 720, true},
    {10, 1, 540, 630, false}, {12, 1, 840, 990, false},  {0, 3, 900, 1140, false},  {22, 2, 1080, 1200, true},
    {23, 0, 510, 520, false}, {2, -1, 960, 1020, false}, {14, -2, 600, 660, false}, {24, 3, 660, 680, false},
    {22, 0, 600, 690, false},
};

// `minutes` from midnight of the day `day` days from today.
Date moment(Date today, int day, int minutes) {
  CivilTime civil = Date{today.wholeDay().days + day}.civil();
  civil.hour = minutes / 60;
  civil.minute = minutes % 60;
  return Date::of(civil);
}

std::optional<Date> dayOrNone(Date today, int day, int minutes) {
  return day == none ? std::nullopt : std::optional(moment(today, day, minutes));
}

std::vector<std::string> keywordsOf(std::string_view text) {
  std::vector<std::string> keywords;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find(';'), text.size());
    keywords.emplace_back(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return keywords;
}

DemoTask makeTask(const TaskText& text, Date today, std::string key) {
  DemoTask task;
  task.key = std::move(key);
  task.project = text.project;
  task.description = text.description;
  task.notes = text.notes;
  task.status = text.status;
  task.current = text.current;
  task.deadline = dayOrNone(today, text.deadline, 0);
  task.created = moment(today, text.created, 8 * 60 + 5);
  task.done = dayOrNone(today, text.finished, 16 * 60 + 40);
  task.importance = text.importance;
  task.difficulty = text.difficulty;
  task.minutesNeeded = text.minutesNeeded;
  task.minutesSpent = text.minutesSpent;
  task.points = text.points;
  task.hasChecklist = text.hasChecklist;
  task.linked = text.linked;
  task.keywords = keywordsOf(text.keywords);
  return task;
}

}  // namespace

DemoContents demoContents(Date today, const std::function<std::string()>& newKey) {
  DemoContents contents;
  for (const char* name : projectNames) contents.projects.push_back({newKey(), name});
  for (const TaskText& text : taskTexts) contents.tasks.push_back(makeTask(text, today, newKey()));
  for (const auto& [task, day, start, end, linked] : appointmentTexts) {
    contents.appointments.push_back({newKey(), task, moment(today, day, start), moment(today, day, end), linked});
    contents.tasks[task].minutesScheduled += end - start;
  }
  return contents;
}

}  // namespace tarnel::host
