// Turns the family tables into CLI11 subcommands.
#ifndef ZUNDE_CLI_COMMAND_RUNNER_H
#define ZUNDE_CLI_COMMAND_RUNNER_H

#include <CLI/CLI.hpp>

#include <functional>

#include "command_table.h"

namespace zcli {

// What the parsed command line asks for; returns the exit status.
using Action = std::function<int()>;

// One subcommand group for `family`, one subcommand per row; the chosen
// row's run is left in `action`.
void AddFamily(CLI::App& app, const Family& family, Action& action);

// Makes `call` GlobalOptions().repeat times; with more than one, reports the
// minimum, median and 99th percentile time on standard error.
bool Timed(const std::function<bool()>& call);

// Prints the command line of every "Example: " in the help texts of `app`
// and its subcommands, one a line; kOk.
int PrintExamples(const CLI::App& app);

}  // namespace zcli

#endif
