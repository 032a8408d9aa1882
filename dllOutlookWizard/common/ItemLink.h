#pragma once

namespace tarnel {

// The user property by which an item of Outlook is linked, and the entry of a row's tag that holds the same: the key of
// the task or Task Appointment.
inline constexpr const char* linkProperty = "BrackwellTarnelGUID";
// The entry of a row's tag that holds its item's entry id.
inline constexpr const char* entryIdEntry = "ENTRYID";

}  // namespace tarnel
