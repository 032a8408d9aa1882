#include "Contained.h"

#include <new>

#include "Failure.h"

namespace tarnel {
namespace {

constexpr std::int32_t greatestNumber = 0xFFFF;

TarnelResult tell(const FailureListener& failed, std::int32_t number, const char* text) noexcept {
  try {
    if (failed) failed(number, text);
  } catch (...) {
    // The words are lost for want of memory; the number still gets through.
  }
  return resultOf(number);
}

}  // namespace

TarnelResult resultOf(std::int32_t number) {
  if (number < 0) return number;
  return number > 0 && number <= greatestNumber ? TARNEL_FAILURE(number) : TARNEL_FAILED;
}

TarnelResult contained(const std::function<TarnelResult()>& operation, const FailureListener& failed) noexcept {
  try {
    return operation();
  } catch (const Refusal& refusal) {
    return refusal.result;
  } catch (const Failure& failure) {
    return tell(failed, failure.number(), failure.what());
  } catch (const std::bad_alloc&) {
    return TARNEL_OUT_OF_MEMORY;
  } catch (const std::exception& error) {
    return tell(failed, failure::automation, error.what());
  } catch (...) {
    return TARNEL_FAILED;
  }
}

}  // namespace tarnel
