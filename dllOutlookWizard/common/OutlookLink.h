#pragma once

namespace tarnel {

// What joins a row or a record to its item of Outlook. Both names are also entries of a row's tag.
namespace outlookLink {
// The user property of the item that holds the key of its task or Task Appointment.
inline constexpr const char* tarnelGuid = "BrackwellTarnelGUID";
// The item's entry id; in tags alone.
inline constexpr const char* entryId = "ENTRYID";
}  // namespace outlookLink

}  // namespace tarnel
