#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "Color.h"
#include "Control.h"
#include "Date.h"

namespace tarnel {

// One day's schedule. An appointment is addressed by its index, from 1; a wrong index is failure 9. Times are minutes
// from midnight, days are whole day numbers.
class ctMDay : public Control {
 public:
  using Control::Control;

  // What is shown of an appointment.
  struct Appointment {
    std::int16_t start = 0;
    std::int16_t end = 0;
    std::int32_t date = 0;
    std::int32_t firstDay = 0;  // the days that it is on, both included
    std::int32_t lastDay = 0;
    std::string text;
    std::string key;
    std::string tag;
    Color color = rgb(255, 255, 255);
    std::int16_t ownerImage = 0;  // number of a picture given to AddImage; 0 for none
    std::int16_t markImage = 0;
    std::int32_t state = 0;
    bool allDay = false;
    bool flagA = false;
    bool flagB = false;
  };

  // An index has 16 bits, and whoever counts up to the last one in them has to get past it.
  static constexpr std::int16_t mostAppointments = 32766;

  void AppClear();
  bool isFull() const { return AppCount() == mostAppointments; }
  // Appends; the new appointment's index is the count after it. It is on `date` alone until AppDays are set.
  // Failure 6 when the schedule is full.
  std::int16_t AppAdd(std::int16_t start, std::int16_t end, std::int32_t date, std::string text, std::string key);
  std::int16_t AppCount() const { return static_cast<std::int16_t>(appointments_.size()); }
  // Those after it move down by one.
  void AppRemove(std::int16_t index);
  const Appointment& appointment(std::int16_t index) const { return appointments_[offset(index)]; }

  const std::string& AppTag(std::int16_t index) const { return appointment(index).tag; }
  std::int16_t AppOwnerImage(std::int16_t index) const { return appointment(index).ownerImage; }
  std::int16_t AppMarkImage(std::int16_t index) const { return appointment(index).markImage; }

  void setAppTag(std::int16_t index, std::string tag) { change(index).tag = std::move(tag); }
  void setAppColor(std::int16_t index, Color color) { change(index).color = color, changed(); }
  void setAppOwnerImage(std::int16_t index, std::int16_t image) { change(index).ownerImage = image, changed(); }
  void setAppMarkImage(std::int16_t index, std::int16_t image) { change(index).markImage = image, changed(); }
  void setAppState(std::int16_t index, std::int32_t state) { change(index).state = state; }
  void setAppAllDay(std::int16_t index, bool allDay) { change(index).allDay = allDay, changed(); }
  void setAppFlagA(std::int16_t index, bool flag) { change(index).flagA = flag; }
  void setAppFlagB(std::int16_t index, bool flag) { change(index).flagB = flag; }
  void setAppDate(std::int16_t index, std::int32_t date) { change(index).date = date, changed(); }
  void setAppStart(std::int16_t index, std::int16_t start) { change(index).start = start, changed(); }
  void setAppEnd(std::int16_t index, std::int16_t end) { change(index).end = end, changed(); }
  // What spans several days is drawn on each of them, with a sign where it goes on. `date` and the minutes stay.
  void setAppDays(std::int16_t index, std::int32_t first, std::int32_t last) {
    change(index).firstDay = first, change(index).lastDay = last, changed();
  }
  void setAppText(std::int16_t index, std::string text) { change(index).text = std::move(text), changed(); }

  // Drops the selection that is being made, so that no AppSelect follows. Meant for an AppPreSelect handler.
  void AppDeselect() { selecting_ = false; }
  // What a user does: selects an appointment.
  void select(std::int16_t index);

  // Pictures are numbered from 1 in the order of adding; none is drawn before UseImages is set.
  void setUseImages(bool use) { useImages_ = use; }
  bool UseImages() const { return useImages_; }
  void AddImage(std::string picture) { images_.push_back(std::move(picture)); }
  // Empty for 0, for a number without a picture, and while UseImages is off.
  std::string image(std::int16_t number) const;

  Date ShowDate() const { return showDate_; }
  void setShowDate(Date date) { showDate_ = date.wholeDay(), changed(); }

  // First and last minute shown, 0 to 1439. These and the scale are drawn with the next Redraw.
  std::int32_t DayStart() const { return dayStart_; }
  void setDayStart(std::int32_t minute) { dayStart_ = minute; }
  std::int32_t DayEnd() const { return dayEnd_; }
  void setDayEnd(std::int32_t minute) { dayEnd_ = minute; }
  // 0 to 4 for rows of 5, 10, 15, 30 or 60 minutes. Failure 5 for any other value.
  void setTimeScale(std::int32_t scale);
  std::int32_t TimeScale() const { return timeScale_; }
  // While UseCustomScale is 1 a row is CustomScale minutes long.
  void setUseCustomScale(std::int32_t use) { useCustomScale_ = use; }
  std::int32_t UseCustomScale() const { return useCustomScale_; }
  void setCustomScale(std::int32_t minutes) { customScale_ = minutes; }
  std::int32_t CustomScale() const { return customScale_; }
  std::int32_t minutesPerRow() const;
  void Redraw(bool now);

  Signal<std::int16_t> AppPreSelect;
  Signal<std::int16_t> AppSelect;
  // Something that is drawn has changed.
  Signal<> changed;

 private:
  std::size_t offset(std::int16_t index) const;
  Appointment& change(std::int16_t index) { return appointments_[offset(index)]; }

  std::vector<Appointment> appointments_;
  std::vector<std::string> images_;
  Date showDate_;
  std::int32_t dayStart_ = 0;
  std::int32_t dayEnd_ = 1439;
  std::int32_t timeScale_ = 4;
  std::int32_t useCustomScale_ = 0;
  std::int32_t customScale_ = 60;
  bool useImages_ = false;
  bool selecting_ = false;
};

}  // namespace tarnel
