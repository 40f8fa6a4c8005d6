// What the service keeps for the virtual channels: the on-demand slot of a
// channel, and the usage (KPI) events, newest kept.
#ifndef ZUNDE_SERVICE_VIRTUAL_STATE_H
#define ZUNDE_SERVICE_VIRTUAL_STATE_H

#include <ctime>
#include <optional>
#include <string>

#include "FCVirtualChannelsAPI.h"
#include "FCVirtualProgramData.h"
#include "store.h"

namespace zunde::service {

// The on-demand slot set on the channel `serviceId`; none when unset.
std::optional<FCVirtualProgramData> LoadOnDemand(const Store& store, unsigned long long serviceId);
void SaveOnDemand(Store& store, unsigned long long serviceId, FCVirtualProgramData program);
void EraseOnDemand(Store& store, unsigned long long serviceId);

struct KpiEvent {
  FCVirtualChannelsAPI::EKPIType type;
  std::string name;
  std::string category;
  std::string desc;
  time_t time = 0;
};

// Adds `event`; beyond the newest `keep` events the oldest go.
void LogKpiEvent(Store& store, KpiEvent event, int keep);

}  // namespace zunde::service

#endif
