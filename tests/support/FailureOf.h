#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <string>

#include "Failure.h"

namespace tarnel::test {

// The Failure that `act` throws; none when it throws none.
template <class Act>
std::optional<Failure> thrownBy(const Act& act) {
  try {
    act();
  } catch (const Failure& failure) {
    return failure;
  }
  return {};
}

// Its number, 0 for none.
template <class Act>
std::int32_t failureOf(const Act& act) {
  const auto failure = thrownBy(act);
  return failure ? failure->number() : 0;
}

// "number: description" of it, "none" for none.
template <class Act>
std::string failureTextOf(const Act& act) {
  const auto failure = thrownBy(act);
  return failure ? std::to_string(failure->number()) + ": " + failure->description() : "none";
}

inline testing::AssertionResult contains(const std::string& text, const std::string& part) {
  if (text.find(part) != std::string::npos) return testing::AssertionSuccess();
  return testing::AssertionFailure() << "\"" << text << "\" has no \"" << part << "\"";
}

}  // namespace tarnel::test
