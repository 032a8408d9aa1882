#include "OutlookDateSpan.h"

#include "Failure.h"
#include "Platform.h"
#include "Quote.h"
#include "StandardHandler.h"

namespace tarnel {
namespace {

std::string spanFilter(Date dStart, Date dEnd) {
  const Locale& locale = platform().locale;
  return "[Start] <= " + Quote(locale.shortDate(dEnd) + " 11:59 PM") + " AND [End] > " +
         Quote(locale.shortDate(dStart) + " 12:00 AM");
}

}  // namespace

std::shared_ptr<outlook::Items> OutlookDateSpan(const std::shared_ptr<outlook::Items>& items, Date dStart, Date dEnd) {
  if (!items) return nullptr;
  std::shared_ptr<outlook::Items> span;
  // Sorting, including occurrences, restricting: in any other order a series would count once, on its first day.
  bool succeeded = ignoringFailures([&] { items->Sort("[Start]"); });
  succeeded &= ignoringFailures([&] { items->setIncludeRecurrences(true); });
  succeeded &= ignoringFailures([&] { span = items->Restrict(spanFilter(dStart, dEnd)); });
  return succeeded ? span : nullptr;
}

}  // namespace tarnel
