#pragma once

#include "Registry.h"

namespace tarnel {

// The class's entry in the user's registry: below Software\Classes the key CLSID\{class id} with the class's name, its
// library's file and the type library, and the key of the class's name with the class id.

// False when the registry can't be written; nothing is left half-written then.
bool registerClass(Registry& registry);
bool unregisterClass(Registry& registry);

}  // namespace tarnel
