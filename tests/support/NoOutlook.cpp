#include "NoOutlook.h"

#include "Failure.h"

namespace tarnel::test {
namespace {

[[noreturn]] void fail() { throw Failure(failure::noSuchObject, "ActiveX component can't create object"); }

}  // namespace

std::shared_ptr<outlook::Application> NoOutlook::activeApplication() { fail(); }
std::shared_ptr<outlook::Application> NoOutlook::createApplication() { fail(); }
std::unique_ptr<outlook::SafeTaskItem> NoOutlook::createSafeTaskItem() { fail(); }
std::unique_ptr<outlook::SafeAppointmentItem> NoOutlook::createSafeAppointmentItem() { fail(); }
std::unique_ptr<outlook::MAPITable> NoOutlook::createMAPITable() { fail(); }
std::unique_ptr<outlook::MAPIUtils> NoOutlook::createMAPIUtils() { fail(); }

}  // namespace tarnel::test
