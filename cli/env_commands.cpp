// zunde-cli env: the remote content environment.
#include <ZundeProvider.h>

#include "command_table.h"

namespace zcli {
namespace {

FCRemoteContentAPI* Env() { return FCAPI::GetRemoteContentAPI(); }

}  // namespace

Family EnvironmentFamily() {
  return {"env", "The remote content environment: country, language, user, recommendation option", {
    {"get", "Show the country and language", "zunde-cli env get", {},
     [](const Args&, Json::Value& out) {
       std::string country, language;
       const bool ok = Env()->GetRemoteContentEnv(country, language);
       out["country"] = country;
       out["language"] = language;
       return ok;
     }},
    {"set", "Set the country and language", "zunde-cli env set DE de",
     {{"COUNTRY", Kind::Text, "country code, e.g. US"}, {"LANGUAGE", Kind::Text, "language code, e.g. en"}},
     [](const Args& a, Json::Value&) { return Env()->SetRemoteContentEnv(a.s(0), a.s(1)); }},
    {"activity", "The remote content activity of a TV source and mode", "zunde-cli env activity 3 0 0",
     {{"SOURCE", Kind::Int, "TV input source"}, {"ANTENNA_MODE", Kind::Int, "antenna mode"},
      {"SERVICE_MODE", Kind::Int, "service mode"}},
     [](const Args& a, Json::Value& out) {
       eRemoteContentActivity activity{};
       const bool ok = Env()->GetRemoteContentActivityByTVSourceAndTVMode(a.i(0), a.i(1), a.i(2), activity);
       out["activity"] = static_cast<int>(activity);
       return ok;
     }},
    {"set-recommend", "Set the recommendation type option", "zunde-cli env set-recommend 1",
     {{"OPTION", Kind::Int, "recommendation type"}},
     [](const Args& a, Json::Value&) {
       return Env()->SetRecommendTypeOption(static_cast<eRecommendTypeOption>(a.i(0)));
     }},
    {"get-recommend", "Show the recommendation type option", "zunde-cli env get-recommend", {},
     [](const Args&, Json::Value& out) {
       eRecommendTypeOption option{};
       const bool ok = Env()->GetRecommendTypeOption(option);
       out["option"] = static_cast<int>(option);
       return ok;
     }},
    {"set-user", "Set the personal user id", "zunde-cli env set-user alice", {{"USER_ID", Kind::Text, "user id"}},
     [](const Args& a, Json::Value&) { return Env()->SetPersonalUserID(a.s(0)); }},
    {"get-user", "Show the personal user id", "zunde-cli env get-user", {},
     [](const Args&, Json::Value& out) {
       std::string user;
       const bool ok = Env()->GetPersonalUserID(user);
       out["user_id"] = user;
       return ok;
     }},
    {"timeout-test", "Hold back the service's answers (time-out test mode) or stop doing so",
     "zunde-cli env timeout-test off", {{"ON", Kind::Bool, "on or off"}},
     [](const Args& a, Json::Value&) { return Env()->ToggleZundeTimeoutTest(a.b(0)); }},
    {"reset", "Reset the environment to its defaults", "zunde-cli env reset", {},
     [](const Args&, Json::Value&) { return Env()->Reset(); }},
  }};
}

}  // namespace zcli
