#include "CZundeResponse.h"

#include <tuple>

#include "FCElementData_internal.h"

using zunde::catalogue::MakeField;
using zunde::catalogue::Member;
using zunde::catalogue::ReadFields;
using zunde::catalogue::ReadKeyedMap;
using zunde::catalogue::WriteFields;
using zunde::catalogue::WriteKeyedMap;

namespace {

const char kCertRuleObject[] = "out_cert_rule";
const char kProviderArray[] = "out_vod_providers";
const char kProviderKey[] = "string";

auto CertRuleFields() {
  using R = CZundeResponse_CertRule;
  return std::make_tuple(MakeField("str_first_screen", &R::str_first_screen),
                         MakeField("str_adult_default", &R::str_adult_default),
                         MakeField("str_bar_mode", &R::str_bar_mode), MakeField("str_bar_ratio", &R::str_bar_ratio),
                         MakeField("str_service_cert_type", &R::str_service_cert_type),
                         MakeField("str_service_rule", &R::str_service_rule),
                         MakeField("str_service_uptime_begin", &R::str_service_uptime_begin),
                         MakeField("str_service_uptime_end", &R::str_service_uptime_end));
}

auto ProviderFields() {
  using R = CZundeResElement_VODProvider;
  return std::make_tuple(MakeField("name", &R::name), MakeField("provider id", &R::provider_id),
                         MakeField("logo", &R::logo), MakeField("widget id", &R::widget_id),
                         MakeField("version", &R::version));
}

void WriteProvider(CZundeResElement_VODProvider& provider, Json::Value& element) {
  WriteFields(provider, element, ProviderFields());
}

void ReadProvider(Json::Value& element, CZundeResElement_VODProvider& provider) {
  ReadFields(element, provider, ProviderFields());
}

}  // namespace

bool CZundeResponse_CertRule::ToJson(CZundeResponse_CertRule& rule, Json::Value& out) {
  WriteFields(rule, out[kCertRuleObject], CertRuleFields());
  return true;
}

bool CZundeResponse_CertRule::FromJson(Json::Value& in, CZundeResponse_CertRule& rule) {
  ReadFields(Member(in, kCertRuleObject), rule, CertRuleFields());
  return true;
}

bool CZundeResponse_VODProviders::ToJson(CZundeResponse_VODProviders& providers, Json::Value& out) {
  WriteKeyedMap(providers, kProviderArray, kProviderKey, out, WriteProvider);
  return true;
}

bool CZundeResponse_VODProviders::FromJson(Json::Value& in, CZundeResponse_VODProviders& providers) {
  ReadKeyedMap(in, kProviderArray, kProviderKey, providers, ReadProvider);
  return true;
}
