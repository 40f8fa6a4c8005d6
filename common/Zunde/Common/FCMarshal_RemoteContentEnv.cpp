// The remote content environment's members. A missing member reads as null:
// an empty string or 0.
#include "FCMarshal.h"

bool FCMarshal::CountryAndLangToJson(std::string const& country, std::string const& language, Json::Value& root) {
  root["country"] = country;
  root["language"] = language;
  return true;
}

bool FCMarshal::JsonToCountryAndLang(Json::Value& root, std::string& country, std::string& language) {
  country = root["country"].asString();
  language = root["language"].asString();
  return true;
}

bool FCMarshal::atokenToJson(std::string const& token, Json::Value& root) {
  root["atoken"] = token;
  return true;
}

bool FCMarshal::JsonToatoken(Json::Value& root, std::string& token) {
  token = root["atoken"].asString();
  return true;
}

bool FCMarshal::TVSourceAndTVModeToJson(int& source, int& tvMode, Json::Value& root) {
  root["in_source"] = source;
  root["in_tvmode"] = tvMode;
  return true;
}

bool FCMarshal::JsonToTVSourceAndTVMode(Json::Value& root, ESource& source, int& tvMode) {
  source = static_cast<ESource>(root["in_source"].asInt());
  tvMode = root["in_tvmode"].asInt();
  return true;
}

bool FCMarshal::TVSourceAndTVModeToJson(int& source, int& antennaMode, int& serviceMode, Json::Value& root) {
  root["in_source"] = source;
  root["in_antennaMode"] = antennaMode;
  root["in_serviceMode"] = serviceMode;
  return true;
}

bool FCMarshal::JsonToTVSourceAndTVMode(Json::Value& root, ESource& source, int& antennaMode, int& serviceMode) {
  source = static_cast<ESource>(root["in_source"].asInt());
  antennaMode = root["in_antennaMode"].asInt();
  serviceMode = root["in_serviceMode"].asInt();
  return true;
}

bool FCMarshal::activityIDToJson(eRemoteContentActivity activity, Json::Value& root) {
  root["activityID"] = static_cast<int>(activity);
  return true;
}

bool FCMarshal::JsonToactivityID(Json::Value& root, eRemoteContentActivity& activity) {
  activity = static_cast<eRemoteContentActivity>(root["activityID"].asInt());
  return true;
}

bool FCMarshal::RecommendTypeOptionToJson(eRecommendTypeOption option, Json::Value& root) {
  root["in_recommend_type"] = static_cast<int>(option);
  return true;
}

bool FCMarshal::JsonToRecommendTypeOption(Json::Value& root, eRecommendTypeOption& option) {
  option = static_cast<eRecommendTypeOption>(root["in_recommend_type"].asInt());
  return true;
}

bool FCMarshal::UserIDToJson(std::string const& userId, Json::Value& root) {
  root["in_user_id"] = userId;
  return true;
}

bool FCMarshal::JsonToUserID(Json::Value& root, std::string& userId) {
  userId = root["in_user_id"].asString();
  return true;
}
