#include "Application.h"
#include "FuzzedMailbox.h"
#include "IcsReader.h"
#include "IcsWriter.h"
#include "Input.h"
#include "ItemQuery.h"
#include "MailboxList.h"
#include "StoredItems.h"

using namespace tarnel;

namespace {

// The two weeks that the wizard would ask for.
void walkCalendar(const std::shared_ptr<mailbox::Mailbox>& mailbox) {
  mailbox::ItemQuery query;
  query.folder = static_cast<std::int64_t>(outlook::DefaultFolder::calendar);
  mailbox::StoredItems calendar(mailbox, query);
  calendar.Sort("[Start]");
  calendar.setIncludeRecurrences(true);
  const auto days = calendar.Restrict("[Start] <= \"11/26/2026 11:59 PM\" AND [End] > \"11/12/2026 12:00 AM\"");
  int walked = 0;
  for (auto item = days->GetFirst(); item && walked < 1000; item = days->GetNext(), ++walked) {
    const auto appointment = outlook::asAppointment(item);
    fuzz::require(appointment->Start() <= appointment->end(), "an appointment ends at its start or later");
  }
}

}  // namespace

// Parts: two calendars, taken one after the other.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Input input(data, size);
  fuzz::FuzzedMailbox mailbox;
  for (int i = 0; i < 2; ++i) {
    const std::string before = mailbox::exportIcsText(*mailbox.opened);
    const bool taken = fuzz::answered([&] { mailbox::importIcsText(*mailbox.opened, input.part(), "fuzzed.ics"); });
    fuzz::require(taken || mailbox::exportIcsText(*mailbox.opened) == before,
                  "a calendar is taken whole or not at all");
  }
  walkCalendar(mailbox.opened);
  const auto items = mailbox::listItems(*mailbox.opened);
  const std::string text = mailbox::exportIcsText(*mailbox.opened);
  fuzz::FuzzedMailbox copy;
  const auto report = mailbox::importIcsText(*copy.opened, text, "exported.ics");
  fuzz::require(report.skipped.empty(),
                report.skipped.empty() ? "" : "what is exported can be read: " + report.skipped[0]);
  return 0;
}
