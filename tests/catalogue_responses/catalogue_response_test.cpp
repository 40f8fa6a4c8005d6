// The certification rule and the provider table in their JSON forms, as
// the operator's replies carry them.
#include <gtest/gtest.h>

#include <string>

#include "ZundeProvider.h"
#include "json_text.h"

namespace {

using zunde::testing::Parsed;

const char* const kCertRuleKeys[] = {"str_adult_default",        "str_bar_mode",
                                     "str_bar_ratio",            "str_first_screen",
                                     "str_service_cert_type",    "str_service_rule",
                                     "str_service_uptime_begin", "str_service_uptime_end"};

TEST(CertRule, TravelsAsEightStringsInsideOutCertRule) {
  CZundeResponse_CertRule rule;
  rule.str_first_screen = "epg";
  rule.str_adult_default = "locked";
  rule.str_bar_mode = "top";
  rule.str_bar_ratio = "0.2";
  rule.str_service_cert_type = "pin";
  rule.str_service_rule = "19";
  rule.str_service_uptime_begin = "06:00";
  rule.str_service_uptime_end = "23:59";
  Json::Value root;
  EXPECT_TRUE(FCMarshal::CertRuleToJson(rule, root));

  ASSERT_EQ(root.getMemberNames(), std::vector<std::string>{"out_cert_rule"});
  const Json::Value& object = root["out_cert_rule"];
  EXPECT_EQ(object.getMemberNames(), std::vector<std::string>(std::begin(kCertRuleKeys), std::end(kCertRuleKeys)));
  for (const char* key : kCertRuleKeys) EXPECT_TRUE(object[key].isString()) << key;
  EXPECT_EQ(object["str_first_screen"], "epg");
  EXPECT_EQ(object["str_service_uptime_end"], "23:59");

  CZundeResponse_CertRule back;
  EXPECT_TRUE(FCMarshal::JsonToCertRule(root, back));
  EXPECT_EQ(back.str_first_screen, "epg");
  EXPECT_EQ(back.str_adult_default, "locked");
  EXPECT_EQ(back.str_bar_mode, "top");
  EXPECT_EQ(back.str_bar_ratio, "0.2");
  EXPECT_EQ(back.str_service_cert_type, "pin");
  EXPECT_EQ(back.str_service_rule, "19");
  EXPECT_EQ(back.str_service_uptime_begin, "06:00");
  EXPECT_EQ(back.str_service_uptime_end, "23:59");
}

TEST(CertRule, ReplyWithoutTheRuleGivesEightEmptyStringsAndIsNotChanged) {
  Json::Value reply = Parsed(R"({"ret": true})");
  CZundeResponse_CertRule rule;
  rule.str_bar_mode = "stale";
  EXPECT_TRUE(FCMarshal::JsonToCertRule(reply, rule));
  EXPECT_EQ(rule.str_bar_mode, "");
  EXPECT_EQ(rule.str_first_screen + rule.str_service_uptime_end, "");
  EXPECT_EQ(reply.getMemberNames(), std::vector<std::string>{"ret"});
}

TEST(CertRule, ValueOfAnotherTypeThrowsToTheCaller) {
  Json::Value reply = Parsed(R"({"out_cert_rule": {"str_bar_mode": [1]}})");
  CZundeResponse_CertRule rule;
  EXPECT_THROW(FCMarshal::JsonToCertRule(reply, rule), Json::Exception);
}

CZundeResElement_VODProvider Provider(const std::string& name) {
  CZundeResElement_VODProvider provider;
  provider.name = name;
  provider.provider_id = name + "-id";
  provider.logo = "http://logo/" + name;
  provider.widget_id = "w" + name;
  provider.version = "1.0";
  return provider;
}

TEST(VODProviders, WritesOneElementPerProviderInKeyOrder) {
  CZundeResponse_VODProviders providers;
  providers["zeta"] = Provider("Z");
  providers["alpha"] = Provider("A");
  Json::Value root;
  EXPECT_TRUE(FCMarshal::VODProviderToJson(providers, root));

  const Json::Value& elements = root["out_vod_providers"];
  ASSERT_TRUE(elements.isArray());
  ASSERT_EQ(elements.size(), 2u);
  EXPECT_EQ(elements[0]["string"], "alpha");
  EXPECT_EQ(elements[1]["string"], "zeta");
  EXPECT_EQ(elements[0].getMemberNames(),
            (std::vector<std::string>{"logo", "name", "provider id", "string", "version", "widget id"}));
  EXPECT_EQ(elements[0]["provider id"], "A-id");
  EXPECT_EQ(elements[0]["widget id"], "wA");
}

TEST(VODProviders, EmptyTableWritesNoArray) {
  CZundeResponse_VODProviders providers;
  Json::Value root;
  root["ret"] = true;
  EXPECT_TRUE(FCMarshal::VODProviderToJson(providers, root));
  EXPECT_EQ(root.getMemberNames(), std::vector<std::string>{"ret"});
}

TEST(VODProviders, FirstOfTwoWithTheSameKeyIsKept) {
  Json::Value reply = Parsed(R"({"out_vod_providers": [
      {"string": "p1", "name": "first", "provider id": "1", "logo": "", "widget id": "", "version": "1"},
      {"string": "p2", "name": "other", "provider id": "2", "logo": "", "widget id": "", "version": "1"},
      {"string": "p1", "name": "second", "provider id": "3", "logo": "", "widget id": "", "version": "2"}]})");
  CZundeResponse_VODProviders providers;
  EXPECT_TRUE(FCMarshal::JsonToVODProvider(reply, providers));
  ASSERT_EQ(providers.size(), 2u);
  EXPECT_EQ(providers["p1"].name, "first");
  EXPECT_EQ(providers["p1"].provider_id, "1");
  EXPECT_EQ(providers["p2"].name, "other");
}

TEST(VODProviders, ReadingAddsToWhatTheTableHolds) {
  CZundeResponse_VODProviders providers;
  providers["kept"] = Provider("K");
  providers["p1"] = Provider("old");
  Json::Value reply = Parsed(R"({"out_vod_providers": [{"string": "p1", "name": "new"}]})");
  EXPECT_TRUE(FCMarshal::JsonToVODProvider(reply, providers));
  EXPECT_EQ(providers.size(), 2u);
  EXPECT_EQ(providers["p1"].name, "old");  // a key the table holds stays
}

TEST(VODProviders, RoundTripKeepsEveryField) {
  CZundeResponse_VODProviders providers;
  providers["a"] = Provider("A");
  providers["b"] = Provider("B");
  Json::Value root;
  FCMarshal::VODProviderToJson(providers, root);
  CZundeResponse_VODProviders back;
  FCMarshal::JsonToVODProvider(root, back);
  ASSERT_EQ(back.size(), 2u);
  for (const auto& entry : providers) {
    const auto& read = back[entry.first];
    EXPECT_EQ(read.name, entry.second.name);
    EXPECT_EQ(read.provider_id, entry.second.provider_id);
    EXPECT_EQ(read.logo, entry.second.logo);
    EXPECT_EQ(read.widget_id, entry.second.widget_id);
    EXPECT_EQ(read.version, entry.second.version);
  }
}

}  // namespace
