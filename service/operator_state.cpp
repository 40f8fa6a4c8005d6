#include "operator_state.h"

#include "FCMarshal.h"

namespace zunde::service {
namespace {

std::string Key(const char* what, int activity) { return std::string("operator/") + what + "/" + std::to_string(activity); }

}  // namespace

std::optional<FCRemoteMSOConfig> LoadOperatorConfig(const Store& store, int activity) {
  Json::Value stored = store.Get(Key("config", activity));
  if (stored.isNull()) return std::nullopt;
  FCRemoteMSOConfig config;
  FCMarshal::JsonToFCRemoteMSOConfig(stored, config);
  return config;
}

void SaveOperatorConfig(Store& store, int activity, FCRemoteMSOConfig config) {
  Json::Value stored(Json::objectValue);
  FCMarshal::FCRmoteMSOConfigToJson(config, stored);
  store.Put(Key("config", activity), stored);
}

time_t LoadGuideLoadedUntil(const Store& store, int activity) {
  const Json::Value loaded = store.Get(Key("loaded", activity));
  return loaded.isNull() ? 0 : static_cast<time_t>(loaded.asInt64());
}

void SaveGuideLoadedUntil(Store& store, int activity, time_t end) {
  store.Put(Key("loaded", activity), Json::Int64(end));
}

}  // namespace zunde::service
