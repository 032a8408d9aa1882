#pragma once

#include <functional>
#include <string>

#include "TarnelOutWizard.h"

namespace tarnel {

// An argument or a moment that a call can't be carried out with.
struct Refusal {
  TarnelResult result;
};

// The result that tells a failure with this number.
TarnelResult resultOf(std::int32_t number);

// What a failure on the way is told with, where somebody can ask for it.
using FailureListener = std::function<void(std::int32_t number, const std::string& text)>;

// Runs one operation of the boundary, across which nothing is thrown.
TarnelResult contained(const std::function<TarnelResult()>& operation, const FailureListener& failed = {}) noexcept;

}  // namespace tarnel
