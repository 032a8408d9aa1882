#include "CStringBag.h"
#include "Conversions.h"
#include "DaySchedules.h"
#include "MarkedRows.h"
#include "OutlookDateSpan.h"
#include "OutlookItems.h"
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

bool isCopyWith(AppointmentItem& item, const std::string& link) {
  if (item.Location() != tarnelLocation) return false;
  const auto property = item.UserProperties()->Item(apptTag::tarnelGuid);
  return property && textOrEmpty(property->Value()) == link;
}

// Carries the current record of Task Appointments over to one day of Outlook's calendar.
class ApptCopy {
 public:
  ApptCopy(ado::Recordset& rows, std::shared_ptr<outlook::Items> dayItems, ctMDay& outlookSide)
      : rows_(rows), dayItems_(std::move(dayItems)), outlookSide_(outlookSide) {}

  void copyCurrentRow() {
    const std::string link = textOrEmpty(rows_.Fields(linkColumn).Value());
    const auto copy = link.empty() ? nullptr : find(link);
    if (copy && !isThrownAway(*copy))
      update(copy, link);
    else
      create();
  }

 private:
  // The first copy of the day that bears the link; null when there is none.
  std::shared_ptr<AppointmentItem> find(const std::string& link) {
    if (!dayItems_) failObjectNotSet();
    dayItems_->Sort("[Start]");
    for (auto item = dayItems_->GetFirst(); item; item = dayItems_->GetNext()) {
      auto appointment = outlook::asAppointment(item);
      if (isCopyWith(*appointment, link)) return appointment;
    }
    return nullptr;
  }

  void update(const std::shared_ptr<AppointmentItem>& item, const std::string& link) {
    const auto wrapper = safeItem(item);
    ApptFields(rows_).writeTo(*wrapper);
    wrapper->Item()->Save();
    for (std::int16_t i = outlookSide_.AppCount(); i >= 1; --i) {
      if (CStringBag(outlookSide_.AppTag(i)).ReadItem(apptTag::tarnelGuid) != link) continue;
      showAgain(i, *item);
      return;
    }
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
    item->UserProperties()->Add(apptTag::tarnelGuid, outlook::PropertyType::text)->setValue(link);
    wrapper->Item()->Save();
    addNewRow(*item, link, color);
  }

  void addNewRow(const AppointmentItem& item, const std::string& link, Color color) {
    ScheduleRow row;
    row.times = rowTimes(item);
    row.text = item.subject();
    row.key = item.EntryID();
    CStringBag tag;
    tag.WriteItem(apptTag::entryId, row.key);
    tag.WriteItem(apptTag::tarnelGuid, link);
    row.tag = tag.Contents();
    row.ownerImage = apptPicture::tarnel;
    row.color = color;
    addRow(outlookSide_, row);
  }

  ado::Recordset& rows_;
  std::shared_ptr<outlook::Items> dayItems_;
  ctMDay& outlookSide_;
};

}  // namespace

bool DaySchedules::Tarnel2OUTAppts() {
  return standardHandler<bool>(modules::frmOutWiz, "Tarnel2OUTAppts", [this](bool& copied) {
    if (!manageOutlookRef()) {
      tellOutlookIsOutOfReach();
      return;
    }
    if (!theTaskApptRows) failObjectNotSet();
    const auto rows = theTaskApptRows;
    {
      const auto folder = outlookNameSpace().GetDefaultFolder(outlook::DefaultFolder::calendar);
      ApptCopy copy(*rows, OutlookDateSpan(folder->items(), form_.formCurDate, form_.formCurDate), outlookSide);
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
