#include "Application.h"
#include "FuzzedMailbox.h"
#include "IcsReader.h"
#include "Input.h"
#include "ItemQuery.h"
#include "StoredItems.h"

using namespace tarnel;

namespace {

std::shared_ptr<mailbox::Mailbox> filled() {
  static fuzz::FuzzedMailbox mailbox;
  static const bool done =
      mailbox::importIcsText(*mailbox.opened,
                             "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:x\r\n"
                             "BEGIN:VTODO\r\nUID:1\r\nSUMMARY:Rent\r\nDUE:20261201\r\nEND:VTODO\r\n"
                             "BEGIN:VTODO\r\nUID:2\r\nSUMMARY:Gas\r\nSTATUS:COMPLETED\r\nEND:VTODO\r\n"
                             "END:VCALENDAR\r\n",
                             "two")
          .added == 2;
  fuzz::require(done, "the two items are there");
  return mailbox.opened;
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  fuzz::answered([&] {
    mailbox::ItemQuery query;
    query.folder = static_cast<std::int64_t>(outlook::DefaultFolder::tasks);
    mailbox::StoredItems all(filled(), query);
    const auto some = all.Restrict(text);
    const auto others = all.Restrict("NOT (" + text + ")");
    fuzz::require(some->Count() + others->Count() <= all.Count(), "an item that matches does not match the contrary");
    std::int32_t walked = 0;
    for (auto item = some->GetFirst(); item; item = some->GetNext()) ++walked;
    fuzz::require(walked == some->Count(), "a walk gives as many items as are counted");
  });
  return 0;
}
