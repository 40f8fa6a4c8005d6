#include "virtual_state.h"

#include "FCMarshal.h"

namespace zunde::service {
namespace {

const char kKpiKey[] = "vc/kpi";

std::string OnDemandKey(unsigned long long id) { return "vc/on demand/" + std::to_string(id); }

}  // namespace

std::optional<FCVirtualProgramData> LoadOnDemand(const Store& store, unsigned long long serviceId) {
  Json::Value stored = store.Get(OnDemandKey(serviceId));
  if (stored.isNull()) return std::nullopt;
  FCVirtualProgramData program;
  FCMarshal::JsonToVirtualProgramData(stored, program);
  return program;
}

void SaveOnDemand(Store& store, unsigned long long serviceId, FCVirtualProgramData program) {
  Json::Value stored(Json::objectValue);
  FCMarshal::VirtualProgramDataToJson(program, stored);
  store.Put(OnDemandKey(serviceId), stored);
}

void EraseOnDemand(Store& store, unsigned long long serviceId) { store.Erase(OnDemandKey(serviceId)); }

void LogKpiEvent(Store& store, KpiEvent event, int keep) {
  Json::Value doc(Json::objectValue);
  FCMarshal::KPIInfoToJson(event.type, event.name, event.category, event.desc, doc);
  doc["time"] = Json::Int64(event.time);
  store.Append(kKpiKey, doc, keep);
}

}  // namespace zunde::service
