#include "StoredAppointment.h"

namespace tarnel::mailbox {
namespace {

void setTimes(ItemRecord& appointment, WallSeconds start, WallSeconds end) {
  appointment.start = start;
  appointment.end = end;
  // An all-day event lasts from midnight to midnight; with other times it is none any more.
  appointment.allDay = appointment.allDay && midnightOf(start) == start && midnightOf(end) == end;
}

}  // namespace

std::int32_t StoredAppointment::Duration() const { return minutesBetween(Start(), end()); }

void StoredAppointment::setStart(Date start) {
  const WallSeconds seconds = outlookSecondsOf(start, "Start");
  ItemRecord& appointment = changeTimes();
  setTimes(appointment, seconds, seconds + appointment.end - appointment.start);
}

void StoredAppointment::setEnd(Date end) {
  const WallSeconds seconds = outlookSecondsOf(end, "The end");
  if (seconds < record().start) failTypeMismatch();
  setTimes(changeTimes(), record().start, seconds);
}

void StoredAppointment::setDuration(std::int32_t minutes) {
  constexpr WallSeconds secondsPerMinute = 60;
  if (minutes < 0) failTypeMismatch();
  ItemRecord& appointment = changeTimes();
  setTimes(appointment, appointment.start, appointment.start + minutes * secondsPerMinute);
}

ItemRecord& StoredAppointment::changeTimes() {
  if (!record().recurrence.empty())
    throw Failure(failure::automation,
                  "The times of the series \"" + record().subject + "\" can't be set. Set those of an occurrence.",
                  "Outlook.AppointmentItem");
  return change();
}

}  // namespace tarnel::mailbox
