// The catalogue's file form. Records travel in the library's own JSON forms
// (their ToJson and FromJson); the rest is plain members. What a file leaves
// out is filled in first (catalogue_file_defaults.cpp); then it is checked
// against the written default set: every member that the default has must
// be there with the same JSON type, and each element of an array must have
// the shape of the default's first element.
#include <cstdlib>
#include <fstream>
#include <sstream>

#include "catalogue.h"

namespace zunde::service {
namespace {

std::string IdText(unsigned long long id) { return std::to_string(id); }

Json::Value Strings(const std::vector<std::string>& texts) {
  Json::Value array(Json::arrayValue);
  for (const std::string& text : texts) array.append(text);
  return array;
}

Json::Value Ints(const std::vector<int>& numbers) {
  Json::Value array(Json::arrayValue);
  for (int n : numbers) array.append(n);
  return array;
}

template <typename Record>
Json::Value RecordArray(std::vector<Record> records) {
  Json::Value array(Json::arrayValue);
  for (Record& record : records) Record::ToJson(record, array.append(Json::Value(Json::objectValue)));
  return array;
}

template <typename Record>
std::vector<Record> ReadRecords(Json::Value& array) {
  std::vector<Record> records(array.size());
  for (Json::ArrayIndex i = 0; i < array.size(); ++i) Record::FromJson(array[i], records[i]);
  return records;
}

Json::Value LineupToJson(Lineup lineup) {
  Json::Value out(Json::objectValue);
  out["activityID"] = lineup.activity;
  FCRemoteMSOConfig::ToJson(lineup.config, out["config"]);
  out["channels"] = Json::Value(Json::arrayValue);
  for (LineupChannel& entry : lineup.channels) {
    Json::Value& channel = out["channels"].append(Json::Value(Json::objectValue));
    FCRemoteChannel::ToJson(entry.channel, channel);
    channel["tunable"] = entry.tunable;
  }
  return out;
}

Json::Value Document(Catalogue c) {
  Json::Value doc(Json::objectValue);
  doc["broadcast"] = Json::Value(Json::arrayValue);
  for (const BroadcastChannel& b : c.broadcast) {
    Json::Value& e = doc["broadcast"].append(Json::Value(Json::objectValue));
    e["TCServiceId"] = IdText(b.serviceId);
    e["name"] = b.name;
    e["genre"] = b.genre;
    e["program source id"] = b.sourceId;
  }
  doc["lineups"] = Json::Value(Json::arrayValue);
  for (const Lineup& lineup : c.lineups) doc["lineups"].append(LineupToJson(lineup));
  doc["genres"] = RecordArray(c.genres);
  doc["rep genres"] = RecordArray(c.repGenres);
  std::vector<FCRecGroup> groups;
  for (const auto& entry : c.recGroups) groups.push_back(entry.second);
  doc["rec groups"] = RecordArray(groups);
  CZundeResponse_CertRule::ToJson(c.certRule, doc["cert rule"]);
  CZundeResponse_VODProviders::ToJson(c.vodProviders, doc["vod providers"]);
  doc["schedules"] = Json::Value(Json::arrayValue);
  for (const Schedule& s : c.schedules) {
    Json::Value& e = doc["schedules"].append(Json::Value(Json::objectValue));
    e["genre"] = s.genre;
    e["minutes"] = Ints(s.minutes);
    e["titles"] = Strings(s.titles);
  }
  doc["virtual channels"] = Json::Value(Json::arrayValue);
  for (const VirtualChannel& v : c.virtualChannels) {
    Json::Value& e = doc["virtual channels"].append(Json::Value(Json::objectValue));
    e["TCServiceId"] = IdText(v.serviceId);
    e["major"] = v.major;
    e["name"] = v.name;
    e["provider"] = v.provider;
    e["service"] = v.service;
    e["genre"] = v.genre;
    e["images"] = v.imageBase;
  }
  FCVirtualConfig::ToJson(c.virtualConfig, doc["virtual config"]);
  doc["viewing agreement"] = c.viewingAgreement;
  return doc;
}

// --- checking ---

const char* Kind(const Json::Value& value) {
  if (value.isObject()) return "an object";
  if (value.isArray()) return "an array";
  if (value.isString()) return "a string";
  if (value.isBool()) return "true or false";
  if (value.isNumeric()) return "a number";
  return "null";
}

void Refuse(const std::string& place, const std::string& problem) {
  throw CatalogueError((place.empty() ? std::string("the top level") : place) + ": " + problem);
}

void CheckLike(const Json::Value& example, const Json::Value& given, const std::string& place) {
  if (std::string(Kind(example)) != Kind(given)) Refuse(place, std::string("must be ") + Kind(example));
  if (example.isObject()) {
    for (const std::string& name : example.getMemberNames()) {
      const std::string inner = place.empty() ? name : place + "." + name;
      if (!given.isMember(name)) Refuse(place, "missing \"" + name + "\"");
      CheckLike(example[name], given[name], inner);
    }
  } else if (example.isArray() && !example.empty()) {
    for (Json::ArrayIndex i = 0; i < given.size(); ++i) {
      CheckLike(example[0], given[i], place + "[" + std::to_string(i) + "]");
    }
  }
}

// jsoncpp spreads a parse error over several indented lines; the log gets one.
std::string OneLine(const std::string& text) {
  std::istringstream lines(text);
  std::string line, joined;
  while (std::getline(lines, line)) {
    const size_t start = line.find_first_not_of(' ');
    if (start == std::string::npos) continue;
    joined += (joined.empty() ? "" : " ") + line.substr(start);
  }
  return joined;
}

unsigned long long ServiceId(const Json::Value& text, const std::string& place) {
  const std::string digits = text.asString();
  if (digits.empty() || digits.find_first_not_of("0123456789") != std::string::npos) {
    Refuse(place, "must be a decimal service id");
  }
  return std::strtoull(digits.c_str(), nullptr, 10);
}

// What the shapes alone do not say.
void CheckValues(const Json::Value& doc) {
  for (Json::ArrayIndex i = 0; i < doc["lineups"].size(); ++i) {
    const int activity = doc["lineups"][i]["activityID"].asInt();
    if (activity < 0 || activity > 4) Refuse("lineups[" + std::to_string(i) + "].activityID", "must be 0 to 4");
  }
  if (doc["schedules"].empty()) Refuse("schedules", "must hold at least one schedule");
  for (Json::ArrayIndex i = 0; i < doc["schedules"].size(); ++i) {
    const Json::Value& s = doc["schedules"][i];
    const std::string place = "schedules[" + std::to_string(i) + "]";
    if (s["minutes"].empty() || s["titles"].empty()) Refuse(place, "needs minutes and titles");
    for (const Json::Value& m : s["minutes"]) {
      if (!m.isInt() || m.asInt() <= 0 || m.asInt() > 1440) Refuse(place + ".minutes", "must be 1 to 1440");
    }
  }
}

Catalogue FromDocument(Json::Value& doc) {
  Catalogue c;
  for (Json::ArrayIndex i = 0; i < doc["broadcast"].size(); ++i) {
    Json::Value& e = doc["broadcast"][i];
    c.broadcast.push_back({ServiceId(e["TCServiceId"], "broadcast[" + std::to_string(i) + "].TCServiceId"),
                           e["name"].asString(), e["genre"].asString(), e["program source id"].asString()});
  }
  for (Json::Value& e : doc["lineups"]) {
    Lineup lineup;
    lineup.activity = e["activityID"].asInt();
    FCRemoteMSOConfig::FromJson(e["config"], lineup.config);
    for (Json::Value& channel : e["channels"]) {
      LineupChannel entry;
      FCRemoteChannel::FromJson(channel, entry.channel);
      // The record reads its genre name under another key than it writes;
      // the genre list names the genre instead.
      for (const Json::Value& genre : doc["genres"]) {
        if (entry.channel.genre_name.empty() && genre["str_id"] == channel["genre id"]) {
          entry.channel.genre_name = genre["str_name"].asString();
        }
      }
      entry.tunable = channel["tunable"].asBool();
      lineup.channels.push_back(entry);
    }
    c.lineups.push_back(lineup);
  }
  c.genres = ReadRecords<FCGenreInfo>(doc["genres"]);
  c.repGenres = ReadRecords<FCRepGenreInfo>(doc["rep genres"]);
  for (const FCRecGroup& group : ReadRecords<FCRecGroup>(doc["rec groups"])) c.recGroups[group.rec_id] = group;
  CZundeResponse_CertRule::FromJson(doc["cert rule"], c.certRule);
  CZundeResponse_VODProviders::FromJson(doc["vod providers"], c.vodProviders);
  for (Json::Value& e : doc["schedules"]) {
    Schedule s{e["genre"].asString(), {}, {}};
    for (const Json::Value& m : e["minutes"]) s.minutes.push_back(m.asInt());
    for (const Json::Value& t : e["titles"]) s.titles.push_back(t.asString());
    c.schedules.push_back(s);
  }
  for (Json::ArrayIndex i = 0; i < doc["virtual channels"].size(); ++i) {
    Json::Value& e = doc["virtual channels"][i];
    c.virtualChannels.push_back(
        {ServiceId(e["TCServiceId"], "virtual channels[" + std::to_string(i) + "].TCServiceId"), e["major"].asString(),
         e["name"].asString(), e["provider"].asString(), e["service"].asString(), e["genre"].asString(),
         e["images"].asString(), "", "", ""});
  }
  FCVirtualConfig::FromJson(doc["virtual config"], c.virtualConfig);
  c.viewingAgreement = doc["viewing agreement"].asBool();
  return c;
}

}  // namespace

Json::Value CatalogueToJson(const Catalogue& catalogue) { return Document(catalogue); }

Catalogue LoadCatalogue(const std::string& path, int lineupSize) {
  std::ifstream file(path);
  if (!file) throw CatalogueError("cannot read " + path);
  std::stringstream text;
  text << file.rdbuf();
  Json::Value doc;
  Json::Reader reader;
  if (!reader.parse(text.str(), doc, false)) {
    throw CatalogueError("not JSON: " + OneLine(reader.getFormattedErrorMessages()));
  }
  static const Json::Value example = CatalogueToJson(DefaultCatalogue(2));
  FillLeftOut(doc, CatalogueToJson(DefaultCatalogue(lineupSize)));
  CheckLike(example, doc, "");
  CheckValues(doc);
  Catalogue catalogue = FromDocument(doc);
  catalogue.now = std::time(nullptr);
  return catalogue;
}

}  // namespace zunde::service
