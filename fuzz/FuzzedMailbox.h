#pragma once

#include "FixedClock.h"
#include "Mailbox.h"
#include "MailboxFile.h"
#include "TempFolder.h"

namespace tarnel::fuzz {

// An empty mailbox, a new one for each run.
class FuzzedMailbox {
 public:
  FuzzedMailbox() {
    static const test::TempFolder pattern;
    if (!std::filesystem::exists(pattern / "mailbox")) mailbox::createMailbox(pattern / "mailbox");
    std::filesystem::copy_file(pattern / "mailbox", folder / "mailbox");
    opened = std::make_shared<mailbox::Mailbox>(folder / "mailbox", Locale{}, clock);
  }

  test::FixedClock clock;
  test::TempFolder folder;
  std::shared_ptr<mailbox::Mailbox> opened;
};

}  // namespace tarnel::fuzz
