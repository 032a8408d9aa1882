#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

namespace tarnel {

// A failure of the world: what a procedure did not foresee and its standard handler reports.
class Failure : public std::runtime_error {
 public:
  Failure(std::int32_t number, const std::string& description, std::string source = {})
      : std::runtime_error(description), number_(number), source_(std::move(source)) {}

  std::int32_t number() const { return number_; }
  std::string description() const { return what(); }
  // The component that raised the failure, "Program.Class"; empty for the run-time's own.
  const std::string& source() const { return source_; }

 private:
  std::int32_t number_;
  std::string source_;
};

// The run-time's and ADO's own error numbers, as its users know them from their messages.
namespace failure {
inline constexpr std::int32_t invalidCall = 5;
inline constexpr std::int32_t overflow = 6;
inline constexpr std::int32_t subscript = 9;
inline constexpr std::int32_t divisionByZero = 11;
inline constexpr std::int32_t typeMismatch = 13;
inline constexpr std::int32_t fileNotFound = 53;
inline constexpr std::int32_t pathAccess = 75;
inline constexpr std::int32_t objectNotSet = 91;
inline constexpr std::int32_t invalidNull = 94;
inline constexpr std::int32_t noSuchObject = 429;  // a class that can't be made or found running
inline constexpr std::int32_t noSuchProperty = 438;
inline constexpr std::int32_t automation = 440;
inline constexpr std::int32_t keyNotUnique = 457;
inline constexpr std::int32_t invalidArgument = 3001;
inline constexpr std::int32_t noCurrentRecord = 3021;
inline constexpr std::int32_t notSupported = 3251;
inline constexpr std::int32_t noSuchItem = 3265;
inline constexpr std::int32_t objectClosed = 3704;
inline constexpr std::int32_t objectOpen = 3705;
inline constexpr std::int32_t noConnection = 3709;
inline constexpr std::int32_t engine = -2147467259;         // E_FAIL: the database engine's own complaint
inline constexpr std::int32_t writeConflict = -2147217864;  // DB_E_CONCURRENCYVIOLATION
inline constexpr std::int32_t badStatement = -2147217900;   // DB_E_ERRORSINCOMMAND
}  // namespace failure

[[noreturn]] void failSubscript();
[[noreturn]] void failTypeMismatch();
[[noreturn]] void failObjectNotSet();

}  // namespace tarnel
