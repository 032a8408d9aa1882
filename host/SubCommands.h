#pragma once

#include <CLI/CLI.hpp>
#include <functional>

namespace tarnel::host {

// What the command line asked for, once it was read: gives whether all went well.
using Action = std::function<bool()>;

// For the names of files: an empty one, mostly of a variable that isn't set, is no other way to name the user's own.
inline CLI::Validator notEmpty() {
  return {[](const std::string& name) { return name.empty() ? "A file needs a name" : ""; }, "", "notEmpty"};
}

// Each adds a subcommand with subcommands of its own, which set the action. The action outlives neither.
void addMailboxCommand(CLI::App& app, Action& action);
void addProfileCommand(CLI::App& app, Action& action);

}  // namespace tarnel::host
