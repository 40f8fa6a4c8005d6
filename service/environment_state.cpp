#include "environment_state.h"

#include "FCMarshal.h"

namespace zunde::service {
namespace {

const char kEnvironmentKey[] = "environment";

}  // namespace

Environment LoadEnvironment(const Store& store) {
  Environment env;
  Json::Value doc = store.Get(kEnvironmentKey);
  if (doc.isNull()) return env;
  FCMarshal::JsonToCountryAndLang(doc, env.country, env.language);
  FCMarshal::JsonToRecommendTypeOption(doc, env.recommend);
  FCMarshal::JsonToUserID(doc, env.userId);
  FCMarshal::JsonToatoken(doc, env.token);
  return env;
}

void SaveEnvironment(Store& store, const Environment& env) {
  Json::Value doc(Json::objectValue);
  FCMarshal::CountryAndLangToJson(env.country, env.language, doc);
  FCMarshal::RecommendTypeOptionToJson(env.recommend, doc);
  FCMarshal::UserIDToJson(env.userId, doc);
  FCMarshal::atokenToJson(env.token, doc);
  store.Put(kEnvironmentKey, doc);
}

void EraseEnvironment(Store& store) { store.Erase(kEnvironmentKey); }

}  // namespace zunde::service
