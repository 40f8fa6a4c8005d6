// The remote content environment's members. A missing member reads as an
// empty string or 0, and is not added to the document read.
#include "FCMarshal.h"
#include "RecordJson_internal.h"

namespace {

template <class T>
T Read(const Json::Value& root, const char* key) {
  return zunde::recordjson::Read<zunde::recordjson::Strict, T>(root, key);
}

}  // namespace

bool FCMarshal::CountryAndLangToJson(std::string const& country, std::string const& language, Json::Value& root) {
  root["country"] = country;
  root["language"] = language;
  return true;
}

bool FCMarshal::JsonToCountryAndLang(Json::Value& root, std::string& country, std::string& language) {
  country = Read<std::string>(root, "country");
  language = Read<std::string>(root, "language");
  return true;
}

bool FCMarshal::atokenToJson(std::string const& token, Json::Value& root) {
  root["atoken"] = token;
  return true;
}

bool FCMarshal::JsonToatoken(Json::Value& root, std::string& token) {
  token = Read<std::string>(root, "atoken");
  return true;
}

bool FCMarshal::TVSourceAndTVModeToJson(int& source, int& tvMode, Json::Value& root) {
  root["in_source"] = source;
  root["in_tvmode"] = tvMode;
  return true;
}

bool FCMarshal::JsonToTVSourceAndTVMode(Json::Value& root, ESource& source, int& tvMode) {
  source = static_cast<ESource>(Read<int>(root, "in_source"));
  tvMode = Read<int>(root, "in_tvmode");
  return true;
}

bool FCMarshal::TVSourceAndTVModeToJson(int& source, int& antennaMode, int& serviceMode, Json::Value& root) {
  root["in_source"] = source;
  root["in_antennaMode"] = antennaMode;
  root["in_serviceMode"] = serviceMode;
  return true;
}

bool FCMarshal::JsonToTVSourceAndTVMode(Json::Value& root, ESource& source, int& antennaMode, int& serviceMode) {
  source = static_cast<ESource>(Read<int>(root, "in_source"));
  antennaMode = Read<int>(root, "in_antennaMode");
  serviceMode = Read<int>(root, "in_serviceMode");
  return true;
}

bool FCMarshal::activityIDToJson(eRemoteContentActivity activity, Json::Value& root) {
  root["activityID"] = static_cast<int>(activity);
  return true;
}

bool FCMarshal::JsonToactivityID(Json::Value& root, eRemoteContentActivity& activity) {
  activity = static_cast<eRemoteContentActivity>(Read<int>(root, "activityID"));
  return true;
}

bool FCMarshal::RecommendTypeOptionToJson(eRecommendTypeOption option, Json::Value& root) {
  root["in_recommend_type"] = static_cast<int>(option);
  return true;
}

bool FCMarshal::JsonToRecommendTypeOption(Json::Value& root, eRecommendTypeOption& option) {
  option = static_cast<eRecommendTypeOption>(Read<int>(root, "in_recommend_type"));
  return true;
}

bool FCMarshal::UserIDToJson(std::string const& userId, Json::Value& root) {
  root["in_user_id"] = userId;
  return true;
}

bool FCMarshal::JsonToUserID(Json::Value& root, std::string& userId) {
  userId = Read<std::string>(root, "in_user_id");
  return true;
}
