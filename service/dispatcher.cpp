#include "dispatcher.h"

#include <memory>
#include <sstream>

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

// Compact: the library reads any JSON, and indentation only costs bytes on
// the bus and time on both ends.
std::string Write(const Json::Value& reply) {
  static const std::unique_ptr<Json::StreamWriter> writer = [] {
    Json::StreamWriterBuilder builder;
    builder["indentation"] = "";
    return std::unique_ptr<Json::StreamWriter>(builder.newStreamWriter());
  }();
  std::ostringstream text;
  writer->write(reply, &text);
  return text.str();
}

std::string Refusal(const std::string& why) {
  Json::Value reply(Json::objectValue);
  reply["ret"] = false;
  reply["error"] = why;
  return Write(reply);
}

}  // namespace

std::vector<const MemberTable*> AllMemberTables() {
  return {&EntryMembers(),
          &EnvironmentMembers(),
          &SetTopBoxActivityMembers(),
          &SetTopBoxChannelMapMembers(),
          &SetTopBoxProgramMapMembers(),
          &OperatorCatalogueMembers(),
          &OperatorRecommendationMembers(),
          &MatchFinderMembers(),
          &BroadcastMembers(),
          &VirtualChannelMembers()};
}

Dispatcher::Dispatcher(Store& store, const Catalogue& catalogue, const StorageLimits& limits)
    : store_(store), catalogue_(&catalogue), limits_(limits) {
  for (const MemberTable* table : AllMemberTables()) {
    for (const Member& member : *table) members_[member.name] = &member;
  }
}

void Dispatcher::ReplaceCatalogue(const Catalogue& catalogue) {
  catalogue_ = &catalogue;
  kept_.Forget();
}

const Member* Dispatcher::Find(const std::string& member) const {
  const auto found = members_.find(member);
  return found == members_.end() ? nullptr : found->second;
}

bool Dispatcher::NeverDelayed(const std::string& member) const {
  const Member* found = Find(member);
  return found != nullptr && (found->flags & kNeverDelayed) != 0;
}

void Dispatcher::Handle(const Member& member, Json::Value& body, Json::Value& reply, std::vector<Event>& events) {
  Request request{body, store_, runtime_, events, *catalogue_, limits_};
  if ((member.flags & kChanges) == 0) {
    member.handler(request, reply);
    return;
  }
  Transaction transaction(store_);
  member.handler(request, reply);
  transaction.Commit();
  kept_.Forget();
}

std::string Dispatcher::Run(const Member& member, const std::string& payload, std::vector<Event>& events) {
  Json::Value body = ParseRequest(payload);
  CheckKeys(member, body);
  Json::Value reply(Json::objectValue);
  Handle(member, body, reply, events);
  return Write(reply);
}

std::string Dispatcher::Answer(const std::string& member, const std::string& payload, std::vector<Event>& events) {
  const Member* found = Find(member);
  if (found == nullptr) return Refusal("unknown member \"" + member + "\"");
  const bool keeps = (found->flags & kKeepsAnswer) != 0;
  if (const std::string* kept = keeps ? kept_.Find(member, payload) : nullptr) return *kept;
  std::vector<Event> raised;
  try {
    std::string answer = Run(*found, payload, raised);
    events.insert(events.end(), raised.begin(), raised.end());
    if (keeps) kept_.Keep(member, payload, answer);
    return answer;
  } catch (const BadRequest& refused) {
    return Refusal(refused.what());
  } catch (const StoreError& failed) {
    return Refusal(std::string("storage failed: ") + failed.what());
  } catch (const std::exception& unreadable) {
    // A value the records could not convert; the transaction was rolled back.
    return Refusal(std::string("the request could not be read: ") + unreadable.what());
  }
}

}  // namespace zunde::service
