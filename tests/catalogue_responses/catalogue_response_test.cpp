// The certification rule and the provider table in their JSON forms, as
// the operator's replies carry them: each reply read, written again and
// compared as text.
#include <gtest/gtest.h>

#include <regex>
#include <string>

#include "ZundeProvider.h"
#include "json_text.h"

namespace {

using namespace zunde::testing;

// `reply` read by `read`, then written again by `write`.
template <class Response>
std::string Reread(const std::string& reply, bool (*read)(Json::Value&, Response&),
                   bool (*write)(Response&, Json::Value&)) {
  Json::Value in = Parsed(reply), out(Json::objectValue);
  Response response;
  EXPECT_TRUE(read(in, response));
  EXPECT_TRUE(write(response, out));
  return Compact(out);
}

using M = FCMarshal;

const char kRule[] = R"({"out_cert_rule": {"str_first_screen": "1", "str_adult_default": "2", "str_bar_mode": "3",
    "str_bar_ratio": "4", "str_service_cert_type": "5", "str_service_rule": "6", "str_service_uptime_begin": "7",
    "str_service_uptime_end": "8"}})";

TEST(CertRule, IsExactlyThisTextAndEmptyWhenTheReplyHasNone) {
  EXPECT_EQ(Reread(kRule, M::JsonToCertRule, M::CertRuleToJson), Compact(Parsed(kRule)));
  EXPECT_EQ(Reread(R"({"ret": true})", M::JsonToCertRule, M::CertRuleToJson),
            Compact(Parsed(std::regex_replace(kRule, std::regex("\"[1-8]\""), "\"\""))));
}

const char kProviders[] = R"({"out_vod_providers": [
    {"string": "a", "name": "A", "provider id": "A1", "logo": "http://logo/A", "widget id": "wA", "version": "1.0"},
    {"string": "z", "name": "Z", "provider id": "Z1", "logo": "http://logo/Z", "widget id": "wZ", "version": "2.0"}]})";

// Of two providers under one key the first is kept; no providers, no array.
TEST(VODProviders, AreExactlyThisTextFirstOfEqualKeysKept) {
  std::string reply = kProviders;
  reply.insert(reply.rfind(']'), R"(, {"string": "a", "name": "second"})");
  EXPECT_EQ(Reread(reply, M::JsonToVODProvider, M::VODProviderToJson), Compact(Parsed(kProviders)));
  EXPECT_EQ(Reread("{}", M::JsonToVODProvider, M::VODProviderToJson), "{}\n");
}

}  // namespace
