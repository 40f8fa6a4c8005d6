// Why the last call of this thread failed on the bus, as libdbus put it.
//
// The connection's call reports a failure only as -1; the reason is kept
// here, per thread, for the call outcome the application reads
// (FCAPI::GetLastCallStatus()).
#ifndef ZUNDE_FCIPCERROR_INTERNAL_H
#define ZUNDE_FCIPCERROR_INTERNAL_H

#include <dbus/dbus.h>

#include <string>

namespace zunde::bus {

// Forgets the reason of an earlier call; made before each call.
void ClearLastBusError();
// Keeps libdbus's error name and message.
void RecordBusError(const DBusError& error);
// Keeps a reason found by the library itself on the way to the bus.
void RecordBusError(const char* reason);
// The reason kept since the last clear; empty when none was.
const std::string& LastBusError();

}  // namespace zunde::bus

#endif
