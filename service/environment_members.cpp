// The remote content environment: country and language, recommendation
// type, personal user id, access token, and the activity that a TV source
// and mode stand for. The document is kept in the wire's own vocabulary.
#include "FCMarshal.h"
#include "member_table.h"
#include "set_top_box_state.h"

namespace zunde::service {
namespace {

const char kEnvironmentKey[] = "environment";

// The activity reported for a source that no set-top box is bound to: the
// TV's own tuner.
const int kTunerActivity = 5;

struct Environment {
  std::string country = "US";
  std::string language = "en";
  eRecommendTypeOption recommend = static_cast<eRecommendTypeOption>(0);
  std::string userId;
  std::string token;
};

Environment Load(const Store& store) {
  Environment env;
  Json::Value doc = store.Get(kEnvironmentKey);
  if (doc.isNull()) return env;
  FCMarshal::JsonToCountryAndLang(doc, env.country, env.language);
  FCMarshal::JsonToRecommendTypeOption(doc, env.recommend);
  FCMarshal::JsonToUserID(doc, env.userId);
  FCMarshal::JsonToatoken(doc, env.token);
  return env;
}

void Save(Request& request, const Environment& env, EnvironmentPart changed) {
  Json::Value doc(Json::objectValue);
  FCMarshal::CountryAndLangToJson(env.country, env.language, doc);
  FCMarshal::RecommendTypeOptionToJson(env.recommend, doc);
  FCMarshal::UserIDToJson(env.userId, doc);
  FCMarshal::atokenToJson(env.token, doc);
  request.store.Put(kEnvironmentKey, doc);
  request.events.push_back({kEventEnvironmentChanged, {changed, -1, -1}});
}

void Reset(Request& request, Json::Value& reply) {
  request.store.Erase(kEnvironmentKey);
  request.events.push_back({kEventStateReset, {1, -1, -1}});
  Succeed(reply);
}

void ToggleTimeoutTest(Request& request, Json::Value& reply) {
  request.runtime.slow = request.body["ret"].asBool();
  Succeed(reply);
}

void SetEnv(Request& request, Json::Value& reply) {
  Environment env = Load(request.store);
  FCMarshal::JsonToCountryAndLang(request.body, env.country, env.language);
  Save(request, env, kCountryAndLanguage);
  Succeed(reply);
}

void GetEnv(Request& request, Json::Value& reply) {
  const Environment env = Load(request.store);
  FCMarshal::CountryAndLangToJson(env.country, env.language, reply);
  Succeed(reply);
}

void GetActivityBySource(Request& request, Json::Value& reply) {
  ESource source;
  int antennaMode = 0;
  int serviceMode = 0;
  FCMarshal::JsonToTVSourceAndTVMode(request.body, source, antennaMode, serviceMode);
  const int bound = ActivityOfSource(request.store, source);
  FCMarshal::activityIDToJson(static_cast<eRemoteContentActivity>(bound < 0 ? kTunerActivity : bound), reply);
  Succeed(reply);
}

void SetRecommendType(Request& request, Json::Value& reply) {
  Environment env = Load(request.store);
  FCMarshal::JsonToRecommendTypeOption(request.body, env.recommend);
  Save(request, env, kRecommendType);
  Succeed(reply);
}

void GetRecommendType(Request& request, Json::Value& reply) {
  FCMarshal::RecommendTypeOptionToJson(Load(request.store).recommend, reply);
  Succeed(reply);
}

void SetUserId(Request& request, Json::Value& reply) {
  Environment env = Load(request.store);
  FCMarshal::JsonToUserID(request.body, env.userId);
  Save(request, env, kUserId);
  Succeed(reply);
}

void GetUserId(Request& request, Json::Value& reply) {
  FCMarshal::UserIDToJson(Load(request.store).userId, reply);
  Succeed(reply);
}

void SetToken(Request& request, Json::Value& reply) {
  Environment env = Load(request.store);
  FCMarshal::JsonToatoken(request.body, env.token);
  Save(request, env, kAccessToken);
  Succeed(reply);
}

using T = JsonType;

}  // namespace

const MemberTable& EnvironmentMembers() {
  static const MemberTable table = {
      {"FCRemoteContent_Reset", {}, Reset, true},
      {"ToggleZundeTimeoutTest", {{"ret", T::Bool}}, ToggleTimeoutTest, false},
      {"SetRemoteContentEnv", {{"country", T::String}, {"language", T::String}}, SetEnv, true},
      {"GetRemoteContentEnv", {}, GetEnv, false},
      {"GetRemoteContentActivityByTVSourceAndTSTVMode",
       {{"in_source", T::Int}, {"in_antennaMode", T::Int}, {"in_serviceMode", T::Int}},
       GetActivityBySource,
       false},
      {"SetRecommendTypeOption", {{"in_recommend_type", T::Int}}, SetRecommendType, true},
      {"GetRecommendTypeOption", {}, GetRecommendType, false},
      {"SetPersonalUserID", {{"in_user_id", T::String}}, SetUserId, true},
      {"GetPersonalUserID", {}, GetUserId, false},
      {"SetAToken", {{"atoken", T::String}}, SetToken, true},
  };
  return table;
}

}  // namespace zunde::service
