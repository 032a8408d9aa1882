#include "ctMDay.h"

#include <array>
#include <iterator>

#include "Failure.h"

namespace tarnel {

void ctMDay::AppClear() {
  appointments_.clear();
  changed();
}

std::int16_t ctMDay::AppAdd(std::int16_t start, std::int16_t end, std::int32_t date, std::string text,
                            std::string key) {
  if (isFull())
    throw Failure(failure::overflow, "A schedule holds at most " + std::to_string(mostAppointments) + " appointments");
  Appointment added;
  added.start = start;
  added.end = end;
  added.date = added.firstDay = added.lastDay = date;
  added.text = std::move(text);
  added.key = std::move(key);
  appointments_.push_back(std::move(added));
  changed();
  return AppCount();
}

void ctMDay::AppRemove(std::int16_t index) {
  appointments_.erase(std::next(appointments_.begin(), static_cast<std::ptrdiff_t>(offset(index))));
  changed();
}

std::size_t ctMDay::offset(std::int16_t index) const {
  if (index < 1 || index > AppCount()) failSubscript();
  return static_cast<std::size_t>(index - 1);
}

void ctMDay::select(std::int16_t index) {
  offset(index);  // a wrong index fails before any event
  selecting_ = true;
  AppPreSelect(index);
  if (selecting_) AppSelect(index);
  selecting_ = false;
}

std::string ctMDay::image(std::int16_t number) const {
  if (!useImages_ || number < 1 || static_cast<std::size_t>(number) > images_.size()) return {};
  return images_[static_cast<std::size_t>(number - 1)];
}

void ctMDay::setTimeScale(std::int32_t scale) {
  if (scale < 0 || scale > 4) throw Failure(failure::invalidCall, "A time scale goes from 0 to 4");
  timeScale_ = scale;
}

std::int32_t ctMDay::minutesPerRow() const {
  static constexpr std::array<std::int32_t, 5> scales{5, 10, 15, 30, 60};
  if (useCustomScale_ == 1 && customScale_ > 0) return customScale_;
  return scales[static_cast<std::size_t>(timeScale_)];
}

void ctMDay::Redraw(bool now) {
  if (now) changed();
}

}  // namespace tarnel
