#include "CZundeResponse.h"

namespace {

// A string member of a record and the key it travels under.
template <class Record>
struct StringKey {
  const char* key;
  std::string Record::*member;
};

using CertRule = CZundeResponse_CertRule;
const StringKey<CertRule> kCertRuleKeys[] = {
    {"str_first_screen", &CertRule::str_first_screen},
    {"str_adult_default", &CertRule::str_adult_default},
    {"str_bar_mode", &CertRule::str_bar_mode},
    {"str_bar_ratio", &CertRule::str_bar_ratio},
    {"str_service_cert_type", &CertRule::str_service_cert_type},
    {"str_service_rule", &CertRule::str_service_rule},
    {"str_service_uptime_begin", &CertRule::str_service_uptime_begin},
    {"str_service_uptime_end", &CertRule::str_service_uptime_end},
};

using Provider = CZundeResElement_VODProvider;
const StringKey<Provider> kProviderKeys[] = {
    {"name", &Provider::name},           {"provider id", &Provider::provider_id}, {"logo", &Provider::logo},
    {"widget id", &Provider::widget_id}, {"version", &Provider::version},
};

const char kCertRuleObject[] = "out_cert_rule";
const char kProviderArray[] = "out_vod_providers";
const char kProviderKey[] = "string";

template <class Record, size_t N>
void WriteStrings(const Record& record, const StringKey<Record> (&keys)[N], Json::Value& object) {
  for (const auto& key : keys) object[key.key] = record.*key.member;
}

// Reads through a const value, so that looking up a missing key adds nothing
// to the caller's document.
template <class Record, size_t N>
void ReadStrings(const Json::Value& object, const StringKey<Record> (&keys)[N], Record& record) {
  for (const auto& key : keys) record.*key.member = object[key.key].asString();
}

}  // namespace

bool CZundeResponse_CertRule::ToJson(CZundeResponse_CertRule& rule, Json::Value& out) {
  WriteStrings(rule, kCertRuleKeys, out[kCertRuleObject]);
  return true;
}

bool CZundeResponse_CertRule::FromJson(Json::Value& in, CZundeResponse_CertRule& rule) {
  const Json::Value& document = in;
  ReadStrings(document[kCertRuleObject], kCertRuleKeys, rule);
  return true;
}

bool CZundeResponse_VODProviders::ToJson(CZundeResponse_VODProviders& providers, Json::Value& out) {
  for (const auto& entry : providers) {
    Json::Value element;
    element[kProviderKey] = entry.first;
    WriteStrings(entry.second, kProviderKeys, element);
    out[kProviderArray].append(element);
  }
  return true;
}

bool CZundeResponse_VODProviders::FromJson(Json::Value& in, CZundeResponse_VODProviders& providers) {
  const Json::Value& elements = static_cast<const Json::Value&>(in)[kProviderArray];
  for (Json::ArrayIndex i = 0; i < elements.size(); ++i) {
    CZundeResElement_VODProvider provider;
    ReadStrings(elements[i], kProviderKeys, provider);
    providers.emplace(elements[i][kProviderKey].asString(), provider);  // an existing key stays
  }
  return true;
}
