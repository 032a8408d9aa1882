#pragma once

#include <CLI/CLI.hpp>
#include <functional>

namespace tarnel::host {

// What the command line asked for, once it was read: gives whether all went well.
using Action = std::function<bool()>;

// Each adds a subcommand with subcommands of its own, which set the action. The action outlives neither.
void addMailboxCommand(CLI::App& app, Action& action);
void addProfileCommand(CLI::App& app, Action& action);

}  // namespace tarnel::host
