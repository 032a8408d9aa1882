#include <unordered_map>

#include "ApptTransfer.h"
#include "CStringBag.h"
#include "CalendarCopies.h"
#include "Conversions.h"
#include "MarkedRows.h"
#include "OutlookItems.h"
#include "OutlookLink.h"
#include "ScheduleRow.h"
#include "StandardHandler.h"
#include "manageOutlookRef.h"

namespace tarnel {
namespace {

using outlook::AppointmentItem;

constexpr const char* linkColumn = "taOutlookEntryID";

// What a Task Appointment says to its item.
struct ApptFields {
  explicit ApptFields(ado::Recordset& row)
      : subject(textOrEmpty(row.Fields("taTaskDesc").Value())),
        start(toDate(row.Fields("taStartTime").Value())),
        end(toDate(row.Fields("taEndTime").Value())) {}

  void writeTo(outlook::SafeAppointmentItem& wrapper) const {
    wrapper.Item()->setSubject(subject);
    wrapper.setStart(start);
    wrapper.setEnd(end);
    wrapper.setLocation(tarnelLocation);
    wrapper.setDuration(minutesBetween(start, end));
  }

  std::string subject;
  Date start;
  Date end;
};

// The rows of a schedule by the link in their tags; of several with one link the last one.
class RowsByLink {
 public:
  explicit RowsByLink(const ctMDay& schedule) {
    for (std::int16_t i = schedule.AppCount(); i >= 1; --i)
      if (std::string link = CStringBag(schedule.AppTag(i)).ReadItem(outlookLink::tarnelGuid); !link.empty())
        rows_.try_emplace(std::move(link), i);
  }

  // 0 for none.
  std::int16_t find(const std::string& link) const {
    const auto row = rows_.find(link);
    return row == rows_.end() ? std::int16_t{0} : row->second;
  }
  void add(const std::string& link, std::int16_t row) { rows_.insert_or_assign(link, row); }

 private:
  std::unordered_map<std::string, std::int16_t> rows_;
};

// Carries the current record of Task Appointments over to one day of Outlook's calendar.
class ApptCopy {
 public:
  ApptCopy(ado::Recordset& rows, Date day, ctMDay& outlookSide)
      : rows_(rows), copies_(day), outlookSide_(outlookSide), shown_(outlookSide) {}

  void copyCurrentRow() {
    const std::string link = textOrEmpty(rows_.Fields(linkColumn).Value());
    const auto copy = link.empty() ? nullptr : copies_.find(link, toDate(rows_.Fields("taStartTime").Value()));
    if (copy && !isThrownAway(*copy))
      update(copy, link);
    else
      create();
  }

 private:
  void update(const std::shared_ptr<AppointmentItem>& item, const std::string& link) {
    const auto wrapper = safeItem(item);
    ApptFields(rows_).writeTo(*wrapper);
    wrapper->Item()->Save();
    if (const std::int16_t row = shown_.find(link); row != 0) showAgain(row, *item);
  }

  void showAgain(std::int16_t index, const AppointmentItem& item) {
    const RowTimes times = rowTimes(item);
    outlookSide_.setAppDate(index, times.date);
    outlookSide_.setAppStart(index, times.start);
    outlookSide_.setAppEnd(index, times.end);
    outlookSide_.setAppDays(index, times.firstDay, times.lastDay);
    outlookSide_.setAppText(index, item.subject());
  }

  void create() {
    // All that can be wrong with the record or the settings shows before anything is written.
    const ApptFields fields(rows_);
    const Color color = taskApptColor();
    const std::string link = toText(rows_.Fields("taGUIDID").Value());
    // The link mark is in the database before its item is in Outlook: a mark without an item is made good by the next
    // copy, an item without a mark would be doubled by it.
    rows_.Fields(linkColumn).setValue(link);
    rows_.UpdateBatch(ado::Affect::allChapters);

    const auto item = outlook::asAppointment(outlookApplication().CreateItem(outlook::ItemType::appointment));
    const auto wrapper = safeItem(item);
    fields.writeTo(*wrapper);
    item->UserProperties()->Add(outlookLink::tarnelGuid, outlook::PropertyType::text)->setValue(link);
    wrapper->Item()->Save();
    addNewRow(*item, link, color);
  }

  void addNewRow(const AppointmentItem& item, const std::string& link, Color color) {
    ScheduleRow row;
    row.times = rowTimes(item);
    row.text = item.subject();
    row.key = item.EntryID();
    CStringBag tag;
    tag.WriteItem(outlookLink::entryId, row.key);
    tag.WriteItem(outlookLink::tarnelGuid, link);
    row.tag = tag.Contents();
    row.ownerImage = apptPicture::tarnel;
    row.color = color;
    shown_.add(link, addRow(outlookSide_, row));
  }

  ado::Recordset& rows_;
  CalendarCopies copies_;
  ctMDay& outlookSide_;
  RowsByLink shown_;
};

}  // namespace

bool Tarnel2OUTAppts(DaySchedules& schedules) {
  return standardHandler<bool>(modules::frmOutWiz, "Tarnel2OUTAppts", [&](bool& copied) {
    if (!attachOrTell()) return;
    if (!schedules.theTaskApptRows) failObjectNotSet();
    const auto rows = schedules.theTaskApptRows;
    ctMDay& tarnelSide = schedules.tarnelSide;
    {
      ApptCopy copy(*rows, schedules.formDate(), schedules.outlookSide);
      forEachMarkedRow(tarnelSide, [&](std::int16_t i) {
        rows->Find("taGUIDID", tarnelSide.AppTag(i));
        if (!rows->atEOF()) copy.copyCurrentRow();
        tarnelSide.setAppMarkImage(i, apptPicture::none);
      });
      rows->UpdateBatch(ado::Affect::allChapters);
    }  // the items go before the session that they belong to
    closeOutlook();
    copied = true;
  });
}

}  // namespace tarnel
