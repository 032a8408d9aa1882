#include "CStringBag.h"
#include "Conversions.h"
#include "Input.h"

using namespace tarnel;

// Parts: the contents, a name, a value.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Input input(data, size);
  const std::string contents = input.part(), name = input.part(), value = input.part();
  CStringBag bag(contents);
  fuzz::answered([&] { bag.ReadItem(name); });
  fuzz::answered([&] { bag.WriteItem(name, value); });
  fuzz::answered([&] { bag.RemoveItem(name); });

  // A bag that nobody tampered with gives back what was put in.
  if (value.find('\t') != std::string::npos || name.find_first_of("\t=") != std::string::npos) return 0;
  CStringBag own;
  own.WriteItem("BEFORE", "1");
  own.WriteItem(name, value);
  own.WriteItem(name, value);
  if (std::string("BEFORE").ends_with(toUpper(name))) return 0;  // found as the tail of the other name
  fuzz::require(own.ReadItem(name) == value, "an item reads back as it was written");
  fuzz::require(own.ReadItem("BEFORE") == "1", "writing leaves the other items alone");
  return 0;
}
