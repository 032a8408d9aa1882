#pragma once

#include <string>

#include "DemoContents.h"

namespace tarnel::host {

// The SQL script that fills an empty task database with these contents.
std::string demoScript(const DemoContents& contents);

}  // namespace tarnel::host
