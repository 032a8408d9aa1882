#include "TaskPoints.h"

#include "Conversions.h"
#include "m_OutlookWizard.h"

namespace tarnel {
namespace {

// Where the entries of thePointsTable begin.
constexpr std::size_t importancePoints = 0;
constexpr std::size_t difficultyPoints = 5;
constexpr std::size_t timePoints = 10;  // little, some, much
constexpr std::size_t checklistPoints = 13;
constexpr std::size_t schedulePoints = 14;

constexpr std::int32_t littleTime = 10;  // minutes, at most
constexpr std::int32_t muchTime = 120;   // minutes, at least

// The level where it is one of 0 to 4, else `otherwise`.
std::size_t levelOr(const Variant& level, std::size_t otherwise) {
  if (level.isNull() || level.isEmpty()) return otherwise;
  const std::int32_t number = toLong(level);
  return number >= 0 && number <= 4 ? static_cast<std::size_t>(number) : otherwise;
}

std::size_t timeStep(const Variant& needed) {
  const std::int32_t minutes = needed.isNull() ? 0 : toLong(needed);
  return minutes <= littleTime ? 0 : minutes >= muchTime ? 2 : 1;
}

bool isTrue(const Variant& flag) { return !flag.isNull() && toBoolean(flag); }

}  // namespace

std::int32_t possiblePoints(ado::Recordset& task) {
  const auto& points = session().thePointsTable;
  std::int64_t sum = points[importancePoints + levelOr(task.Fields("tskImp").Value(), 1)];
  sum += points[difficultyPoints + levelOr(task.Fields("tskDifficulty").Value(), 0)];
  sum += points[timePoints + timeStep(task.Fields("tskTimeNeeded").Value())];
  if (isTrue(task.Fields("tskHasChecklist").Value())) sum += points[checklistPoints];
  if (isTrue(task.Fields("tskHasSchedule").Value())) sum += points[schedulePoints];
  return roundToLong(static_cast<double>(sum));
}

}  // namespace tarnel
