// Two responses of the operator catalogue that travel as records of their
// own: the certification rule of the operator service and the table of
// video-on-demand providers.
//
// Like the other catalogue records, every value is a JSON string, and
// reading takes each key unconditionally: a missing key reads as the empty
// string, and a value that is not a string makes jsoncpp throw to the caller.
#ifndef ZUNDE_CZUNDERESPONSE_H
#define ZUNDE_CZUNDERESPONSE_H

#include <json/json.h>

#include <map>
#include <string>

// The certification rule, carried inside "out_cert_rule".
class CZundeResponse_CertRule {
 public:
  std::string str_first_screen;
  std::string str_adult_default;
  std::string str_bar_mode;
  std::string str_bar_ratio;
  std::string str_service_cert_type;
  std::string str_service_rule;
  std::string str_service_uptime_begin;
  std::string str_service_uptime_end;

  // Writes the eight strings into out["out_cert_rule"].
  static bool ToJson(CZundeResponse_CertRule& rule, Json::Value& out);
  // Reads them back; without "out_cert_rule" all eight are empty.
  static bool FromJson(Json::Value& in, CZundeResponse_CertRule& rule);
};

// One video-on-demand provider.
class CZundeResElement_VODProvider {
 public:
  virtual ~CZundeResElement_VODProvider() {}

  std::string name;         // "name"
  std::string provider_id;  // "provider id"
  std::string logo;         // "logo"
  std::string widget_id;    // "widget id"
  std::string version;      // "version"
};

// The providers by their key, carried as the array "out_vod_providers" whose
// elements hold the key under "string" beside the provider's own keys.
class CZundeResponse_VODProviders : public std::map<std::string, CZundeResElement_VODProvider> {
 public:
  // Appends one element per provider in ascending key order; an empty table
  // writes no "out_vod_providers" at all.
  static bool ToJson(CZundeResponse_VODProviders& providers, Json::Value& out);
  // Adds each element in array order; of two with the same "string" the
  // first is kept.
  static bool FromJson(Json::Value& in, CZundeResponse_VODProviders& providers);
};

#endif
