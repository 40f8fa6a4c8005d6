#include "CZundeResponse.h"
#include "FCMarshal.h"

bool FCMarshal::CertRuleToJson(CZundeResponse_CertRule& rule, Json::Value& root) {
  return CZundeResponse_CertRule::ToJson(rule, root);
}

bool FCMarshal::JsonToCertRule(Json::Value& root, CZundeResponse_CertRule& rule) {
  return CZundeResponse_CertRule::FromJson(root, rule);
}

bool FCMarshal::VODProviderToJson(CZundeResponse_VODProviders& providers, Json::Value& root) {
  return CZundeResponse_VODProviders::ToJson(providers, root);
}

bool FCMarshal::JsonToVODProvider(Json::Value& root, CZundeResponse_VODProviders& providers) {
  return CZundeResponse_VODProviders::FromJson(root, providers);
}
