#include "FilterSql.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "Conversions.h"
#include "Failure.h"
#include "NamedProperties.h"

namespace tarnel::mailbox {
namespace {

enum class Type { text, number, date, boolean };

struct Property {
  std::string_view name;
  Type type;
  std::string_view sql;
};

constexpr std::array properties = {
    Property{"Subject", Type::text, "i.subject"},
    Property{"Body", Type::text, "i.body"},
    Property{"Importance", Type::number, "i.importance"},
    Property{"Sensitivity", Type::number, "i.sensitivity"},
    Property{"Status", Type::number, "i.status"},
    Property{"Complete", Type::boolean, "i.complete"},
    Property{"PercentComplete", Type::number, "i.percentComplete"},
    Property{"DateCompleted", Type::date, "i.dateCompleted"},
    Property{"DueDate", Type::date, "i.dueDate"},
    Property{"TotalWork", Type::number, "i.totalWork"},
    Property{"ActualWork", Type::number, "i.actualWork"},
    Property{"Start", Type::date, "i.startTime"},
    Property{"End", Type::date, "i.endTime"},
    Property{"Duration", Type::number, "((i.endTime - i.startTime) / 60)"},
    Property{"Location", Type::text, "i.location"},
    Property{"AllDayEvent", Type::boolean, "i.allDay"},
    Property{"IsRecurring", Type::boolean, "(i.recurrence <> '' OR i.series IS NOT NULL)"},
    Property{"ReminderSet", Type::boolean, "i.reminderSet"},
    Property{"CreationTime", Type::date, "i.created"},
    Property{"LastModificationTime", Type::date, "i.modified"},
};

const Property* findProperty(std::string_view name) {
  const auto found = std::find_if(properties.begin(), properties.end(),
                                  [&](const Property& each) { return equalsIgnoringCase(each.name, name); });
  return found == properties.end() ? nullptr : &*found;
}

std::string_view sign(Filter::Comparison comparison) {
  constexpr std::array<std::string_view, 6> signs = {" = ", " <> ", " < ", " <= ", " > ", " >= "};
  return signs[static_cast<std::size_t>(comparison)];
}

// None for a word that is no boolean; any number but 0 is true.
std::optional<bool> booleanOf(const std::string& word) {
  if (equalsIgnoringCase(word, "yes")) return true;
  if (equalsIgnoringCase(word, "no")) return false;
  try {
    return toBoolean(Variant(word));
  } catch (const Failure&) {
    return {};
  }
}

class Translator {
 public:
  Translator(std::string_view text, Store& store, const Locale& locale) : text_(text), store_(store), locale_(locale) {}

  void add(const Filter& filter) {
    switch (filter.kind) {
      case Filter::Kind::comparison:
        return addComparison(filter);
      case Filter::Kind::negation:
        result_.sql += "NOT ";
        return addJoined(filter, "");
      case Filter::Kind::any:
        return addJoined(filter, " OR ");
      case Filter::Kind::all:
        return addJoined(filter, " AND ");
    }
  }

  SqlCondition result() { return std::move(result_); }

 private:
  void addJoined(const Filter& filter, std::string_view word) {
    result_.sql += "(";
    for (std::size_t i = 0; i < filter.parts.size(); ++i) {
      if (i > 0) result_.sql += word;
      add(filter.parts[i]);
    }
    result_.sql += ")";
  }

  void addComparison(const Filter& filter) {
    const Property* property = findProperty(filter.property);
    if (!property) return addUserProperty(filter);
    SqlValue wanted = value(filter, property->type);
    // A text that is used as a number is a fraction, see number().
    const bool isFraction = property->type == Type::number && std::holds_alternative<std::string>(wanted);
    result_.sql += std::string(property->sql) + std::string(sign(filter.comparison));
    result_.sql += isFraction ? "CAST(? AS NUMERIC)" : "?";
    if (property->type == Type::text) result_.sql += " COLLATE NOCASE";
    result_.values.push_back(std::move(wanted));
  }

  void addUserProperty(const Filter& filter) {
    const auto name = store_.nameId(filter.property);
    if (!name) failFilter(text_, "there is no property \"" + filter.property + "\"");
    // An exception's properties are its own; an item without the property compares as an empty text.
    result_.sql += "ifnull((SELECT p.value FROM userProperties p WHERE p.item = i.id AND p.name = ?), '')" +
                   std::string(sign(filter.comparison)) + "? COLLATE NOCASE";
    result_.values.emplace_back(*name);
    result_.values.emplace_back(filter.literal);
  }

  SqlValue value(const Filter& filter, Type type) {
    switch (type) {
      case Type::text:
        return filter.literal;
      case Type::number:
        return number(filter);
      case Type::boolean:
        if (const auto flag = booleanOf(filter.literal)) return static_cast<std::int64_t>(*flag);
        failValue(filter, "true or false");
      case Type::date:
        if (const auto date = locale_.parseDate(filter.literal)) return wallSecondsOf(*date);
        failValue(filter, "a date in the system's short date format");
    }
    return {};
  }

  // A whole number as one, any other as a text.
  SqlValue number(const Filter& filter) {
    constexpr double farthest = 9007199254740992;  // up to here a double holds every whole number
    try {
      const double wanted = toDouble(Variant(filter.literal));
      if (wanted == std::trunc(wanted) && std::abs(wanted) <= farthest) return static_cast<std::int64_t>(wanted);
      return toText(Variant(wanted));
    } catch (const Failure&) {
      failValue(filter, "a number");
    }
  }

  [[noreturn]] void failValue(const Filter& filter, const std::string& expected) {
    failFilter(text_, "[" + filter.property + "] takes " + expected + ", and \"" + filter.literal + "\" is none");
  }

  std::string_view text_;
  Store& store_;
  const Locale& locale_;
  SqlCondition result_;
};

using Bound = std::optional<WallSeconds>;

// The bound of items that meet both, or either, condition; none is open.
Bound tighter(Bound a, Bound b, bool isLower) {
  if (!a || !b) return a ? a : b;
  return isLower ? std::max(a, b) : std::min(a, b);
}

Bound looser(Bound a, Bound b, bool isLower) {
  if (!a || !b) return {};
  return isLower ? std::min(a, b) : std::max(a, b);
}

Filter::Comparison negated(Filter::Comparison comparison) {
  using enum Filter::Comparison;
  switch (comparison) {
    case equal:
      return unequal;
    case unequal:
      return equal;
    case less:
      return greaterOrEqual;
    case lessOrEqual:
      return greater;
    case greater:
      return lessOrEqual;
    case greaterOrEqual:
      return less;
  }
  return comparison;
}

TimeSpan spanOfComparison(const Filter& filter, bool negate, const Locale& locale) {
  using enum Filter::Comparison;
  if (!equalsIgnoringCase(filter.property, "Start") && !equalsIgnoringCase(filter.property, "End")) return {};
  const auto date = locale.parseDate(filter.literal);
  if (!date) return {};
  const WallSeconds at = wallSecondsOf(*date);
  const auto comparison = negate ? negated(filter.comparison) : filter.comparison;
  // Nothing ends before it starts, so a bound on either end bounds the other one too.
  TimeSpan span;
  if (comparison == equal || comparison == greater || comparison == greaterOrEqual) span.from = at;
  if (comparison == equal || comparison == less || comparison == lessOrEqual) span.to = at;
  return span;
}

TimeSpan spanOf(const Filter& filter, bool negate, const Locale& locale) {
  if (filter.kind == Filter::Kind::comparison) return spanOfComparison(filter, negate, locale);
  if (filter.kind == Filter::Kind::negation) return spanOf(filter.parts.front(), !negate, locale);
  // Negation turns AND into OR and the other way round.
  const bool all = (filter.kind == Filter::Kind::all) != negate;
  TimeSpan span = spanOf(filter.parts.front(), negate, locale);
  for (std::size_t i = 1; i < filter.parts.size(); ++i) {
    const TimeSpan part = spanOf(filter.parts[i], negate, locale);
    span.from = all ? tighter(span.from, part.from, true) : looser(span.from, part.from, true);
    span.to = all ? tighter(span.to, part.to, false) : looser(span.to, part.to, false);
  }
  return span;
}

}  // namespace

SqlCondition sqlCondition(const Filter& filter, std::string_view text, Store& store, const Locale& locale) {
  Translator translator(text, store, locale);
  translator.add(filter);
  return translator.result();
}

std::string sortColumn(std::string_view property) {
  std::string_view name = property;
  if (name.starts_with('[') && name.ends_with(']')) name = name.substr(1, name.size() - 2);
  const Property* found = findProperty(name);
  if (!found)
    throw Failure(failure::automation,
                  "Items can't be sorted by \"" + std::string(property) + "\": there is no such property.",
                  "Outlook.Items");
  return std::string(found->sql) + (found->type == Type::text ? " COLLATE NOCASE" : "");
}

TimeSpan timeSpan(const Filter& filter, const Locale& locale) { return spanOf(filter, false, locale); }

}  // namespace tarnel::mailbox
