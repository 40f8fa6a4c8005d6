// The commands that are not rows of a family table: the pass-through call,
// the whole reset, the event monitor, the programme guide, its XMLTV export
// and sending an event.
#ifndef ZUNDE_CLI_DIRECT_COMMANDS_H
#define ZUNDE_CLI_DIRECT_COMMANDS_H

#include "command_runner.h"

namespace zcli {

void AddCall(CLI::App& app, Action& action);
void AddReset(CLI::App& app, Action& action);
void AddMonitor(CLI::App& app, Action& action);
void AddGuide(CLI::App& app, Action& action);
// Under the catalogue family, which must already be there.
void AddExportXmltv(CLI::App& app, Action& action);
void AddEmit(CLI::App& app, Action& action);

}  // namespace zcli

#endif
