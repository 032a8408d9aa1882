#pragma once

#include <exception>
#include <string_view>
#include <utility>

#include "Failure.h"
#include "ReportWizardError.h"
#include "RunningProcedure.h"

namespace tarnel {

// The handler that every procedure runs under: what it did not foresee is reported and ends the wizard, and the
// procedure gives what its result held at that moment.
//
//   bool frmOutWiz::MarkAll() {
//     return standardHandler<bool>(modules::frmOutWiz, "MarkAll", [&](bool& result) {
//       ...
//       result = true;
//     });
//   }
template <class Result, class Body>
Result standardHandler(const Module& module, std::string_view procedure, Body&& body) {
  const RunningProcedure running;
  Result result{};
  try {
    std::forward<Body>(body)(result);
  } catch (const Failure& failure) {
    ReportWizardError(module, procedure, failure.description(), failure.number());
  } catch (const std::exception& error) {
    ReportWizardError(module, procedure, error.what(), failure::automation);
  }
  return result;
}

// The same for a procedure without a result.
template <class Body>
void standardHandler(const Module& module, std::string_view procedure, Body&& body) {
  standardHandler<bool>(module, procedure, [&body](bool&) { body(); });
}

// A stretch in which failures are ignored; false when there was one.
template <class Body>
bool ignoringFailures(Body&& body) {
  try {
    std::forward<Body>(body)();
    return true;
  } catch (const std::exception&) {
    return false;
  }
}

}  // namespace tarnel
