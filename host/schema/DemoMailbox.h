#pragma once

#include <string>

#include "DemoContents.h"

namespace tarnel::host {

// The demo mailbox as iCalendar text: the linked tasks and appointments of the demo contents, tasks and appointments
// that only Outlook has, and a weekly meeting of which one was moved.
std::string demoMailbox(const DemoContents& contents, Date today);

}  // namespace tarnel::host
