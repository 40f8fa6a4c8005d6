#include "dispatcher.h"

#include "FCMarshal.h"

namespace zunde::service {
namespace {

const char* TypeName(JsonType type) {
  switch (type) {
    case JsonType::Int: return "an integer";
    case JsonType::UInt: return "an unsigned integer";
    case JsonType::String: return "a string";
    case JsonType::Bool: return "a boolean";
    case JsonType::Array: return "an array";
    case JsonType::Object: return "an object";
  }
  return "?";
}

bool HasType(const Json::Value& value, JsonType type) {
  switch (type) {
    case JsonType::Int: return value.isInt();
    case JsonType::UInt: return value.isUInt64();
    case JsonType::String: return value.isString();
    case JsonType::Bool: return value.isBool();
    case JsonType::Array: return value.isArray();
    case JsonType::Object: return value.isObject();
  }
  return false;
}

// An empty payload is an empty request; anything else must be one object.
Json::Value ParseRequest(const std::string& payload) {
  if (payload.find_first_not_of(std::string(" \t\r\n\0", 5)) == std::string::npos) {
    return Json::Value(Json::objectValue);
  }
  Json::Value body;
  if (!Json::Reader().parse(payload, body, false)) throw BadRequest("the request is not a JSON object");
  // Requests without arguments may come as the null value.
  if (body.isNull()) return Json::Value(Json::objectValue);
  if (!body.isObject()) {
    throw BadRequest("the request is not a JSON object");
  }
  return body;
}

void CheckKeys(const Member& member, const Json::Value& body) {
  for (const RequiredKey& key : member.keys) {
    if (!body.isMember(key.name)) throw BadRequest(std::string("missing key \"") + key.name + "\"");
    if (!HasType(body[key.name], key.type)) {
      throw BadRequest(std::string("\"") + key.name + "\" must be " + TypeName(key.type));
    }
  }
}

std::string Write(const Json::Value& reply) { return Json::StyledWriter().write(reply); }

}  // namespace

Dispatcher::Dispatcher(Store& store, const Catalogue& catalogue, const StorageLimits& limits)
    : store_(store), catalogue_(catalogue), limits_(limits) {
  for (const MemberTable* table : {&EntryMembers(), &EnvironmentMembers(), &SetTopBoxMembers(), &OperatorMembers(),
                                   &MatchFinderMembers(), &BroadcastMembers(), &VirtualChannelMembers()}) {
    for (const Member& member : *table) members_[member.name] = &member;
  }
}

const Member* Dispatcher::Find(const std::string& member) const {
  const auto found = members_.find(member);
  return found == members_.end() ? nullptr : found->second;
}

void Dispatcher::Run(const Member& member, Json::Value& body, Json::Value& reply, std::vector<Event>& events) {
  Request request{body, store_, runtime_, events, catalogue_, limits_};
  if (!member.changesState) {
    member.handler(request, reply);
    return;
  }
  Transaction transaction(store_);
  member.handler(request, reply);
  transaction.Commit();
}

std::string Dispatcher::Answer(const std::string& member, const std::string& payload, std::vector<Event>& events) {
  Json::Value reply(Json::objectValue);
  std::vector<Event> raised;
  try {
    const Member* found = Find(member);
    if (found == nullptr) throw BadRequest("unknown member \"" + member + "\"");
    Json::Value body = ParseRequest(payload);
    CheckKeys(*found, body);
    Run(*found, body, reply, raised);
    events.insert(events.end(), raised.begin(), raised.end());
  } catch (const BadRequest& refused) {
    reply = Json::Value(Json::objectValue);
    reply["ret"] = false;
    reply["error"] = refused.what();
  } catch (const StoreError& failed) {
    reply = Json::Value(Json::objectValue);
    reply["ret"] = false;
    reply["error"] = std::string("storage failed: ") + failed.what();
  } catch (const std::exception& unreadable) {
    // A value the records could not convert; the transaction was rolled back.
    reply = Json::Value(Json::objectValue);
    reply["ret"] = false;
    reply["error"] = std::string("the request could not be read: ") + unreadable.what();
  }
  return Write(reply);
}

void Succeed(Json::Value& reply) { reply["ret"] = true; }

int CheckedActivity(int activity) {
  if (activity < 0 || activity > 4) throw BadRequest("activity " + std::to_string(activity) + " is not 0 to 4");
  return activity;
}

unsigned long long ServiceIdOf(Request& request) {
  unsigned long long id = 0;
  FCMarshal::VCJsonToServiceId(request.body, id);
  return id;
}

}  // namespace zunde::service
