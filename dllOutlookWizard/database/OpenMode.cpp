#include "OpenMode.h"

#include <algorithm>
#include <array>
#include <cassert>

namespace tarnel {
namespace {

constexpr auto client = ado::CursorLocation::client;
constexpr auto fixed = ado::CursorType::fixed;
constexpr auto dynamic = ado::CursorType::dynamic;
constexpr auto anyCursor = ado::CursorType::unspecified;
constexpr auto batch = ado::LockType::batchOptimistic;
constexpr auto pessimistic = ado::LockType::pessimistic;
constexpr auto anyLock = ado::LockType::unspecified;

constexpr std::array<OpenMode, 9> modes{{
    {OpenOperation::settingsGetData, client, fixed, batch, fixed, batch},
    {OpenOperation::projectsGetData, client, fixed, batch, anyCursor, anyLock, true},
    {OpenOperation::apptsGetData, client, dynamic, batch, anyCursor, batch},
    {OpenOperation::apptsGetDataKEY, client, fixed, pessimistic, fixed, anyLock},
    {OpenOperation::taskListGetDataKEY, client, dynamic, batch, dynamic, batch},
    {OpenOperation::taskListDataMember, client, dynamic, batch, dynamic, batch},
    {OpenOperation::taskListForceCustSort, client, fixed, batch, fixed, batch},
    {OpenOperation::utilGetDataKEY, client, fixed, batch, fixed, batch},
    {OpenOperation::utilDataMember, client, fixed, batch, anyCursor, anyLock},
}};

}  // namespace

const OpenMode& openModeOf(OpenOperation operation) {
  const auto mode =
      std::find_if(modes.begin(), modes.end(), [operation](const OpenMode& one) { return one.operation == operation; });
  assert(mode != modes.end());
  return *mode;
}

}  // namespace tarnel
