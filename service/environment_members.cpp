// The remote content environment: country and language, recommendation
// type, personal user id, access token, and the activity that a TV source
// and mode stand for.
#include "FCMarshal.h"
#include "environment_state.h"
#include "handler_helpers.h"
#include "set_top_box_state.h"

namespace zunde::service {
namespace {

// The activity reported for a source that no set-top box is bound to: the
// TV's own tuner.
const int kTunerActivity = 5;

// Loads the environment, lets `change` read the request into it, saves it
// and tells of the part changed.
template <typename Change>
void ChangeEnvironment(Request& request, Json::Value& reply, EnvironmentPart changed, Change change) {
  Environment env = LoadEnvironment(request.store);
  change(env);
  SaveEnvironment(request.store, env);
  Raise(request, kEventEnvironmentChanged, changed);
  Succeed(reply);
}

void Reset(Request& request, Json::Value& reply) {
  EraseEnvironment(request.store);
  Raise(request, kEventStateReset, 1);
  Succeed(reply);
}

void ToggleTimeoutTest(Request& request, Json::Value& reply) {
  request.runtime.slow = request.body["ret"].asBool();
  Succeed(reply);
}

void SetEnv(Request& request, Json::Value& reply) {
  ChangeEnvironment(request, reply, kCountryAndLanguage,
                    [&](Environment& env) { FCMarshal::JsonToCountryAndLang(request.body, env.country, env.language); });
}

void GetEnv(Request& request, Json::Value& reply) {
  const Environment env = LoadEnvironment(request.store);
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
  ChangeEnvironment(request, reply, kRecommendType,
                    [&](Environment& env) { FCMarshal::JsonToRecommendTypeOption(request.body, env.recommend); });
}

void GetRecommendType(Request& request, Json::Value& reply) {
  FCMarshal::RecommendTypeOptionToJson(LoadEnvironment(request.store).recommend, reply);
  Succeed(reply);
}

void SetUserId(Request& request, Json::Value& reply) {
  ChangeEnvironment(request, reply, kUserId, [&](Environment& env) { FCMarshal::JsonToUserID(request.body, env.userId); });
}

void GetUserId(Request& request, Json::Value& reply) {
  FCMarshal::UserIDToJson(LoadEnvironment(request.store).userId, reply);
  Succeed(reply);
}

void SetToken(Request& request, Json::Value& reply) {
  ChangeEnvironment(request, reply, kAccessToken, [&](Environment& env) { FCMarshal::JsonToatoken(request.body, env.token); });
}

using T = JsonType;

}  // namespace

const MemberTable& EnvironmentMembers() {
  static const MemberTable table = {
      {"FCRemoteContent_Reset", {}, Reset, kChanges},
      {"ToggleZundeTimeoutTest", {{"ret", T::Bool}}, ToggleTimeoutTest, kNeverDelayed | kTurnsSwitch},
      {"SetRemoteContentEnv", {{"country", T::String}, {"language", T::String}}, SetEnv, kChanges},
      {"GetRemoteContentEnv", {}, GetEnv, kReads},
      {"GetRemoteContentActivityByTVSourceAndTSTVMode",
       {{"in_source", T::Int}, {"in_antennaMode", T::Int}, {"in_serviceMode", T::Int}},
       GetActivityBySource,
       kReads},
      {"SetRecommendTypeOption", {{"in_recommend_type", T::Int}}, SetRecommendType, kChanges},
      {"GetRecommendTypeOption", {}, GetRecommendType, kReads},
      {"SetPersonalUserID", {{"in_user_id", T::String}}, SetUserId, kChanges},
      {"GetPersonalUserID", {}, GetUserId, kReads},
      {"SetAToken", {{"atoken", T::String}}, SetToken, kChanges},
  };
  return table;
}

}  // namespace zunde::service
