// Names on the bus shared by the library, the service and our own tools.
#ifndef ZUNDE_FCIPCNAMES_INTERNAL_H
#define ZUNDE_FCIPCNAMES_INTERNAL_H

namespace zunde::bus {

// Every proxy call goes to this name; its interface is the same string.
inline constexpr const char* kCallListener = "com.velmora.FCCallListener";
inline constexpr const char* kCallObjectPath = "/com/velmora/Object";
// The one D-Bus member of every call; the API method's name is its first argument.
inline constexpr const char* kCallMember = "MethodCall";

inline constexpr const char* kSignalPath = "/com/velmora/Brisvel/IPCS";
inline constexpr const char* kSignalInterface = "com.velmora.Brisvel.Signal";
inline constexpr const char* kEventMember = "Event";
inline constexpr const char* kDataMember = "Data";

// libdbus's "wait for ever".
inline constexpr int kInfiniteTimeoutMs = 0x7fffffff;

}  // namespace zunde::bus

#endif
