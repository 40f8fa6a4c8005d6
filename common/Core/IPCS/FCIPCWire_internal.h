// The argument layout that calls, replies and signals share on the bus:
// a STRING, an INT32 length, and an ARRAY of BYTE with the payload.
#ifndef ZUNDE_FCIPCWIRE_INTERNAL_H
#define ZUNDE_FCIPCWIRE_INTERNAL_H

#include <dbus/dbus.h>

#include <string>

#include "FCLog_internal.h"
#include "FCMessageBuffer.h"

namespace zunde::bus {

// Opens a private connection to the system bus that does not end the process
// when the bus goes away, and stores its unique name. On failure logs
// "Failed to connect to the D-BUS daemon" at `site` and returns null.
DBusConnection* ConnectPrivateSystemBus(std::string& uniqueName, LogSite site = LogSite::Here());

// Appends `text`, the payload's length and the payload: the buffer's bytes
// from the start, as many as lie past its read cursor. False when libdbus
// runs out of memory.
bool AppendTextAndPayload(DBusMessage* message, const char* text, FCMessageBuffer& payload);

// Appends the bytes of the ARRAY of BYTE at `args` to `out`. The array's own
// element count is taken, whatever a length argument said.
void ReadPayload(DBusMessageIter* args, FCMessageBuffer& out);

}  // namespace zunde::bus

#endif
