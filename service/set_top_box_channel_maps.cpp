// The set-top-box channel maps: whole maps, queries over them, stepping
// through them, and changes to one channel (added, remembered, removed,
// favoured, edited).
#include <algorithm>
#include <functional>

#include "FCMBRNetworkChannelAPI.h"
#include "FCMarshal.h"
#include "set_top_box_requests.h"

namespace zunde::service {
namespace {

using Query = FCMBRNetworkChannelAPI::EMBRNetworkChannelQuery;
using T = JsonType;

// Which channels a map query covers.
enum QueryType { kEveryChannel = 0, kRemembered = 1, kAnyFavorite = 2, kDigital = 3 };

std::function<bool(const FCMBRNetworkChannel&)> QueryOf(Request& request) {
  Query query;
  FCMarshal::JsonToQueryType(request.body, query);
  switch (static_cast<int>(query)) {
    case kEveryChannel: return [](const FCMBRNetworkChannel&) { return true; };
    case kRemembered: return [](const FCMBRNetworkChannel& c) { return c.GetRemembered(); };
    case kAnyFavorite: return [](const FCMBRNetworkChannel& c) { return c.GetFavoriteBitSet().any(); };
    case kDigital: return [](const FCMBRNetworkChannel& c) { return c.IsDigital(); };
  }
  throw BadRequest("query type " + std::to_string(query) + " is not 0 to 3");
}

ChannelList::iterator FindMajorMinor(ChannelList& channels, int major, int minor) {
  return std::find_if(channels.begin(), channels.end(),
                      [&](const FCMBRNetworkChannel& c) { return c.GetMajor() == major && c.GetMinor() == minor; });
}

std::string MajorMinorText(int major, int minor) { return std::to_string(major) + "-" + std::to_string(minor); }

// The channel named by "major" and "minor"; refuses when the map has none.
FCMBRNetworkChannel ByMajorMinorOf(Request& request) {
  int major = 0;
  int minor = 0;
  FCMarshal::JsonToMajorMinor(request.body, major, minor);
  ChannelList channels = LoadChannels(request.store, ActivityOf(request));
  const auto found = FindMajorMinor(channels, major, minor);
  if (found == channels.end()) throw BadRequest("no channel " + MajorMinorText(major, minor) + " in the map");
  return *found;
}

// Refuses a map that would hold more channels than the service keeps.
void CheckMapSize(Request& request, const ChannelList& channels) {
  if (channels.size() > static_cast<size_t>(request.limits.channelMap)) {
    throw BadRequest("a channel map holds at most " + std::to_string(request.limits.channelMap) + " channels");
  }
}

void SaveGrown(Request& request, int activity, ChannelList& channels) {
  CheckMapSize(request, channels);
  SaveChannels(request.store, activity, channels);
  Raise(request, kEventChannelMapChanged, activity, static_cast<int32_t>(channels.size()));
}

// --- whole maps ---

void Unchanged(Request& request, Json::Value& reply) {
  ActivityOf(request);
  Succeed(reply);
}

void SetMap(Request& request, Json::Value& reply) {
  const int activity = ActivityOf(request);
  FCMBRNetworkChannelTable table;
  FCMarshal::JsonToMBRNetworkChannelTable(request.body, table);
  ChannelList channels = table.GetNetworkChannelList();
  for (FCMBRNetworkChannel& channel : channels) channel.SetActivityID(activity);
  SaveGrown(request, activity, channels);
  Succeed(reply);
}

void GetMap(Request& request, Json::Value& reply) {
  const auto covered = QueryOf(request);
  ChannelList channels = LoadChannels(request.store, ActivityOf(request));
  channels.remove_if([&](const FCMBRNetworkChannel& c) { return !covered(c); });
  ReplyChannels(channels, reply);
}

void ExistInActivity(Request& request, Json::Value& reply) {
  const auto covered = QueryOf(request);
  const ChannelList channels = LoadChannels(request.store, ActivityOf(request));
  reply["ret"] = std::any_of(channels.begin(), channels.end(), covered);
}

// The next channel after the current one in channel order, wrapping round;
// the current one need not be in the map.
void Step(Request& request, Json::Value& reply, bool up) {
  const FCMBRNetworkChannel current = ChannelOf(request);
  ChannelList channels = LoadChannels(request.store, ActivityOf(request));
  if (channels.empty()) throw BadRequest("the channel map is empty");
  if (!up) channels.reverse();
  const auto order = [](const FCMBRNetworkChannel& c) { return std::make_pair(c.GetMajor(), c.GetMinor()); };
  const auto beyond = [&](const FCMBRNetworkChannel& c) {
    return up ? order(current) < order(c) : order(c) < order(current);
  };
  const auto next = std::find_if(channels.begin(), channels.end(), beyond);
  ReplyChannel(next == channels.end() ? channels.front() : *next, reply);
}

void Up(Request& request, Json::Value& reply) { Step(request, reply, true); }
void Down(Request& request, Json::Value& reply) { Step(request, reply, false); }

void ByMajorMinor(Request& request, Json::Value& reply) { ReplyChannel(ByMajorMinorOf(request), reply); }

void ExistByMajorMinor(Request& request, Json::Value& reply) {
  int major = 0;
  int minor = 0;
  FCMarshal::JsonToMajorMinor(request.body, major, minor);
  ChannelList channels = LoadChannels(request.store, ActivityOf(request));
  reply["ret"] = FindMajorMinor(channels, major, minor) != channels.end();
}

int Number(const std::string& text, const char* what) {
  try {
    size_t used = 0;
    const int value = std::stoi(text, &used);
    if (used == text.size()) return value;
  } catch (const std::logic_error&) {
  }
  throw BadRequest(std::string(what) + " \"" + text + "\" is not a number");
}

void ByChannelIdOriginMajor(Request& request, Json::Value& reply) {
  std::string channelId;
  std::string originMajor;
  FCMarshal::JsonToChannelIdMajor(request.body, channelId, originMajor);
  FCMBRNetworkChannelTable table;
  for (const auto& channel : LoadChannels(request.store, ActivityOf(request))) table.AppendNetworkChannel(channel);
  FCMBRNetworkChannel found;
  if (!table.FindNetworkChannelByChannelIDOriginMajor(Number(channelId, "channel id"), Number(originMajor, "major"),
                                                      found)) {
    throw BadRequest("no channel with channel id " + channelId + " and origin major " + originMajor + " in the map");
  }
  ReplyChannel(found, reply);
}

void MaxMajorMinor(Request& request, Json::Value& reply) {
  int major = 0;
  int minor = 0;
  for (const auto& channel : LoadChannels(request.store, ActivityOf(request))) {
    major = std::max(major, channel.GetMajor());
    minor = std::max(minor, channel.GetMinor());
  }
  FCMarshal::MajorMinorToJson(major, minor, reply);
  Succeed(reply);
}

// Featured: the channels with a rank (m_acRank above 0), best rank first.
void Featured(Request& request, Json::Value& reply) {
  ChannelList featured = LoadChannels(request.store, ActivityOf(request));
  featured.remove_if([](const FCMBRNetworkChannel& c) { return c.GetacRank() <= 0; });
  featured.sort([](const auto& a, const auto& b) { return a.GetacRank() < b.GetacRank(); });
  ReplyChannels(featured, reply);
}

// --- changes to one channel of a map ---

// Applies `change` to the channel of the request (by major and minor) and
// saves the map; refused when the map has no such channel.
template <typename Change>
void ChangeChannel(Request& request, Json::Value& reply, Change change) {
  const int activity = ActivityOf(request);
  const FCMBRNetworkChannel given = ChannelOf(request);
  ChannelList channels = LoadChannels(request.store, activity);
  const auto found = FindMajorMinor(channels, given.GetMajor(), given.GetMinor());
  if (found == channels.end()) {
    throw BadRequest("no channel " + MajorMinorText(given.GetMajor(), given.GetMinor()) + " in the map");
  }
  change(channels, found, activity);
  SaveChannels(request.store, activity, channels);
  Succeed(reply);
}

void AddChannel(Request& request, Json::Value& reply) {
  const int activity = ActivityOf(request);
  FCMBRNetworkChannel channel = ChannelOf(request);
  ChannelList channels = LoadChannels(request.store, activity);
  if (FindMajorMinor(channels, channel.GetMajor(), channel.GetMinor()) != channels.end()) {
    throw BadRequest("the map already holds that major and minor");
  }
  channel.SetActivityID(activity);
  channels.push_back(channel);
  SaveGrown(request, activity, channels);
  Succeed(reply);
}

void Remember(Request& request, Json::Value& reply) {
  const bool on = request.body["ret"].asBool();
  ChangeChannel(request, reply, [on](ChannelList&, ChannelList::iterator it, int) { it->SetRemembered(on); });
}

void Remove(Request& request, Json::Value& reply) {
  ChangeChannel(request, reply, [&](ChannelList& channels, ChannelList::iterator it, int activity) {
    channels.erase(it);
    Raise(request, kEventChannelMapChanged, activity, static_cast<int32_t>(channels.size()));
  });
}

void Favorite(Request& request, Json::Value& reply, bool on) {
  FCMBRNetworkChannel::EFavorite list;
  FCMarshal::JsonToEFavorite(request.body, list);
  if (list < 0 || list >= MBR_NETWORKCHANNEL_FAVORITE_MAX) {
    throw BadRequest("favourite list " + std::to_string(list) + " is not 0 to 4");
  }
  ChangeChannel(request, reply, [&](ChannelList& channels, ChannelList::iterator it, int activity) {
    it->SetFavorite(list, on);
    const auto size = std::count_if(channels.begin(), channels.end(),
                                    [&](const FCMBRNetworkChannel& c) { return c.GetFavoriteBitSet()[list]; });
    Raise(request, kEventFavoriteChanged, activity, list, static_cast<int32_t>(size));
  });
}

void AddFavorite(Request& request, Json::Value& reply) { Favorite(request, reply, true); }
void DeleteFavorite(Request& request, Json::Value& reply) { Favorite(request, reply, false); }

// An edit may change the major and minor: the channel is found by its
// channel id and origin major instead.
void Edit(Request& request, Json::Value& reply) {
  const int activity = ActivityOf(request);
  FCMBRNetworkChannel edited = ChannelOf(request);
  ChannelList channels = LoadChannels(request.store, activity);
  const auto found = std::find_if(channels.begin(), channels.end(), [&](const FCMBRNetworkChannel& c) {
    return c.GetChannelID() == edited.GetChannelID() && c.GetOriginMajor() == edited.GetOriginMajor();
  });
  if (found == channels.end()) throw BadRequest("no channel with that channel id and origin major");
  edited.SetActivityID(activity);
  *found = edited;
  SaveChannels(request.store, activity, channels);
  Succeed(reply);
}

void EditCompleted(Request& request, Json::Value& reply) {
  Raise(request, kEventChannelEditCompleted, ActivityOf(request));
  Succeed(reply);
}

const RequiredKey kMajor{"m_major", T::Int};
const RequiredKey kMinor{"m_minor", T::Int};
const RequiredKey kQuery{"query type", T::Int};
const RequiredKey kFavorite{"favorite", T::Int};
const std::vector<RequiredKey> kMajorMinor{kActivityKey, {"major", T::Int}, {"minor", T::Int}};

}  // namespace

const MemberTable& SetTopBoxChannelMapMembers() {
  static const MemberTable table = {
      {"ConstructMBRNetworkChannelMap", {kActivityKey}, Unchanged, kReads},
      {"ConstructMBRNetworkProgramMap", {kActivityKey}, Unchanged, kReads},
      {"SaveMBRNetworkChannelMap", {kActivityKey}, Unchanged, kReads},
      {"SetMBRNetworkChannelMap", {kActivityKey}, SetMap, kChanges},
      {"GetMBRNetworkChannelMap", {kActivityKey, kQuery}, GetMap, kReads},
      {"ExistChannelInActivityID", {kActivityKey, kQuery}, ExistInActivity, kReads},
      {"GetMBRNetworkChannelUp", {kActivityKey, kMajor, kMinor}, Up, kReads},
      {"GetMBRNetworkChannelDown", {kActivityKey, kMajor, kMinor}, Down, kReads},
      {"GetMBRNetworkChannelByMajorMinor", kMajorMinor, ByMajorMinor, kReads},
      {"ExistMBRNetworkChannelByMajorMinor", kMajorMinor, ExistByMajorMinor, kReads},
      {"GetMBRNetworkChannelByChannelIDOriginMajor", {kActivityKey, {"channel id", T::String}, {"major", T::String}},
       ByChannelIdOriginMajor, kReads},
      {"GetMaxNumberOfMajorMinor", {kActivityKey}, MaxMajorMinor, kReads},
      {"GetFeaturedMBRChannels", {kActivityKey}, Featured, kReads},
      {"AddNewMBRNetworkChannel", {kActivityKey, kMajor, kMinor}, AddChannel, kChanges},
      {"SetRememberMBRNetworkChannel", {kActivityKey, kMajor, kMinor, {"ret", T::Bool}}, Remember, kChanges},
      {"RemoveMBRNetworkChannel", {kActivityKey, kMajor, kMinor}, Remove, kChanges},
      {"AddFavoriteMBRNetworkChannel", {kActivityKey, kFavorite, kMajor, kMinor}, AddFavorite, kChanges},
      {"DeleteFavoriteMBRNetworkChannel", {kActivityKey, kFavorite, kMajor, kMinor}, DeleteFavorite, kChanges},
      {"SetEditedMBRNetworkChannel", {kActivityKey, {"m_channelID", T::Int}, {"m_originMajor", T::Int}}, Edit, kChanges},
      {"NotifyMBRChannelEditCompleted", {kActivityKey}, EditCompleted, kReads},
  };
  return table;
}

}  // namespace zunde::service
