#include "FCIPCError_internal.h"

namespace zunde::bus {
namespace {

std::string& Slot() {
  thread_local std::string reason;
  return reason;
}

}  // namespace

void ClearLastBusError() { Slot().clear(); }

void RecordBusError(const DBusError& error) {
  Slot() = std::string(error.name ? error.name : "") + ": " + (error.message ? error.message : "");
}

void RecordBusError(const char* reason) { Slot() = reason; }

const std::string& LastBusError() { return Slot(); }

}  // namespace zunde::bus
