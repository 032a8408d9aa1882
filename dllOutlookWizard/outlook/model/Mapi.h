#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Variant.h"

// What MAPI, beneath Outlook's objects, has of them: Redemption's objects reach it through their property MAPIOBJECT.
namespace tarnel::outlook::mapi {

// MAPI's own numbers.
inline constexpr std::int32_t entryId = 0x0FFF0102;  // PR_ENTRYID
inline constexpr std::int32_t subject = 0x0037001E;  // PR_SUBJECT
inline constexpr std::int32_t typeString8 = 0x1E;    // PT_STRING8, in the low 16 bits of a property tag
inline constexpr std::int32_t relopEqual = 4;        // RELOP_EQ
enum class RestrictionKind : std::int32_t { conjunction = 0, property = 4, exists = 8 };  // RES_AND and so on
// Named properties have ids from here up to 0xFFFE, in the high 16 bits of a property tag.
inline constexpr std::int32_t firstNameId = 0x8000;
inline constexpr std::int32_t lastNameId = 0xFFFE;
// PS_PUBLIC_STRINGS, the set in which Outlook keeps user properties.
inline constexpr std::string_view publicStrings = "{00020329-0000-0000-C000-000000000046}";

// An item as MAPI has it.
class Message {
 public:
  virtual ~Message() = default;
  // Id of a named property of the public set. Differs between stores; a name that the store does not know yet gets one.
  // Failure 440 when the store has given all of them.
  virtual std::int32_t idOfName(std::string_view name) = 0;
};

// A named text property that a row must have, and its value, unless any will do.
struct PropertyCondition {
  std::int32_t nameId = 0;
  std::optional<std::string> value;
};

// What the row of an item tells of it.
struct Row {
  Bytes entryId;
  std::string subject;
};

// A folder's items as MAPI has them: the whole folder, whatever restriction the Items have.
class Contents {
 public:
  virtual ~Contents() = default;
  // The numbers of the rows that meet all conditions, in the order of their items' creation.
  virtual std::vector<std::int64_t> find(const std::vector<PropertyCondition>& conditions) = 0;
  // None when the item is gone from the folder.
  virtual std::optional<Row> row(std::int64_t number) = 0;
};

}  // namespace tarnel::outlook::mapi
