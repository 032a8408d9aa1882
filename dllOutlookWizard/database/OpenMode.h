#pragma once

#include "Enums.h"

namespace tarnel {

// The operations of the record classes that open a recordset.
enum class OpenOperation {
  settingsGetData,
  projectsGetData,
  apptsGetData,
  apptsGetDataKEY,
  taskListGetDataKEY,
  taskListDataMember,
  taskListForceCustSort,
  utilGetDataKEY,
  utilDataMember,
};

// How one of them opens: the recordset's properties before the open, what is passed to the open, and whether the
// recordset is detached afterwards.
struct OpenMode {
  OpenOperation operation{};
  ado::CursorLocation location{};
  ado::CursorType cursor{};
  ado::LockType lock{};
  ado::CursorType openCursor{};
  ado::LockType openLock{};
  bool disconnected = false;
};

const OpenMode& openModeOf(OpenOperation operation);

}  // namespace tarnel
