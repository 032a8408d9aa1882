#pragma once

#include <map>
#include <memory>
#include <string>

#include "Date.h"
#include "Folder.h"

namespace tarnel {

// The appointments of Outlook's calendar that copies of Task Appointments made, as far as one day and the times of the
// rows asked for go. The calendar is walked once, however many rows are asked for; the session must stay attached.
class CalendarCopies {
 public:
  explicit CalendarCopies(Date day);

  // The first copy that bears the link, by its start: among what the day holds, and, for a row that lies at the day's
  // edge, at the row's own start. Null when there is none. Failure 91 when the calendar can't be searched.
  std::shared_ptr<outlook::AppointmentItem> find(const std::string& link, Date rowStart);

 private:
  using ByLink = std::multimap<std::string, std::shared_ptr<outlook::AppointmentItem>>;

  ByLink copiesIn(Date from, Date to) const;

  Date day_;
  bool dayRead_ = false, edgesRead_ = false;
  ByLink ofDay_;
  ByLink atEdges_;  // with the days beside it
};

// Whether the day's filter, which asks for what starts up to 11:59 PM and ends after 12:00 AM, leaves such a row out.
bool liesAtTheEdge(Date day, Date rowStart, Date rowEnd);

}  // namespace tarnel
