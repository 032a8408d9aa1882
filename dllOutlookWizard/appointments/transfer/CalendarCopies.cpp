#include "CalendarCopies.h"

#include "Conversions.h"
#include "Failure.h"
#include "OutlookDateSpan.h"
#include "OutlookItems.h"
#include "OutlookLink.h"
#include "ScheduleRow.h"
#include "manageOutlookRef.h"

namespace tarnel {
namespace {

constexpr double lastMinuteOfDay = 1439.0 / 1440.0;

}  // namespace

CalendarCopies::CalendarCopies(Date day) : day_(day.wholeDay()) {}

CalendarCopies::ByLink CalendarCopies::copiesIn(Date from, Date to) const {
  const auto folder = outlookNameSpace().GetDefaultFolder(outlook::DefaultFolder::calendar);
  const auto items = OutlookDateSpan(folder->items(), from, to);
  if (!items) failObjectNotSet();
  items->Sort("[Start]");
  ByLink copies;
  for (auto item = items->GetFirst(); item; item = items->GetNext()) {
    auto appointment = outlook::asAppointment(item);
    if (appointment->Location() != tarnelLocation) continue;
    if (const auto property = appointment->UserProperties()->Item(outlookLink::tarnelGuid))
      copies.emplace(textOrEmpty(property->Value()), std::move(appointment));
  }
  return copies;
}

std::shared_ptr<outlook::AppointmentItem> CalendarCopies::find(const std::string& link, Date rowStart) {
  if (!dayRead_) ofDay_ = copiesIn(day_, day_), dayRead_ = true;
  if (const auto copy = ofDay_.lower_bound(link); copy != ofDay_.end() && copy->first == link) return copy->second;
  // No copy of the day, or one at its very edge: zero minutes at midnight, or a start after 11:59 PM.
  if (!edgesRead_) atEdges_ = copiesIn({day_.days - 1}, {day_.days + 1}), edgesRead_ = true;
  const auto [first, last] = atEdges_.equal_range(link);
  for (auto copy = first; copy != last; ++copy) {
    const Date start = copy->second->Start();
    if (start.wholeDay() == day_ || isoText(start) == isoText(rowStart)) return copy->second;
  }
  return nullptr;
}

bool liesAtTheEdge(Date day, Date rowStart, Date rowEnd) {
  return rowStart.days > day.wholeDay().days + lastMinuteOfDay || rowEnd <= day.wholeDay();
}

}  // namespace tarnel
