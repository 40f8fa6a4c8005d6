// The set-top-box family: activities bound to TV sources, their settings,
// channel maps with favourites, remembered channels and edits, and the
// programme maps per channel id.
#include <algorithm>
#include <ctime>
#include <functional>

#include "FCMBRNetworkChannelAPI.h"
#include "FCMarshal.h"
#include "member_table.h"
#include "set_top_box_state.h"

namespace zunde::service {
namespace {

using Activity = FCMBRNetworkChannelAPI::EActivityID;
using Query = FCMBRNetworkChannelAPI::EMBRNetworkChannelQuery;
using T = JsonType;

// Which channels a map query covers.
enum QueryType { kEveryChannel = 0, kRemembered = 1, kAnyFavorite = 2, kDigital = 3 };

int ActivityOf(Request& request) {
  Activity activity;
  FCMarshal::JsonToEactivityID(request.body, activity);
  return CheckedActivity(activity);
}

FCMBRNetworkChannel ChannelOf(Request& request) {
  FCMBRNetworkChannel channel;
  FCMarshal::JsonToMBRNetworkChannel(request.body, channel);
  return channel;
}

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
  for (auto it = channels.begin(); it != channels.end(); ++it) {
    if (it->GetMajor() == major && it->GetMinor() == minor) return it;
  }
  return channels.end();
}

void Raise(Request& request, EventNumber number, int32_t p1, int32_t p2 = -1, int32_t p3 = -1) {
  request.events.push_back({number, {p1, p2, p3}});
}

void ReplyChannel(FCMBRNetworkChannel channel, Json::Value& reply) {
  FCMarshal::MBRNetworkChannelToJson(channel, reply);
  Succeed(reply);
}

void ReplyChannels(const ChannelList& channels, Json::Value& reply) {
  FCMBRNetworkChannelTable table;
  for (const FCMBRNetworkChannel& channel : channels) table.AppendNetworkChannel(channel);
  FCMarshal::MBRNetworkChannelTableToJson(table, reply);
  Succeed(reply);
}

// Refuses a map that would hold more channels than the service keeps.
void CheckMapSize(Request& request, const ChannelList& channels) {
  if (channels.size() > static_cast<size_t>(request.limits.channelMap)) {
    throw BadRequest("a channel map holds at most " + std::to_string(request.limits.channelMap) + " channels");
  }
}

// --- activities ---

void Allocate(Request& request, Json::Value& reply) {
  int source = -1;
  FCMarshal::JsonToSource(request.body, source);
  if (source == -1) throw BadRequest("source -1 is no source");
  int activity = ActivityOfSource(request.store, source);
  for (int free = 0; activity < 0 && free < kActivityCount; ++free) {
    SetTopBox box = LoadSetTopBox(request.store, free);
    if (box.source != -1) continue;
    box.source = source;
    SaveSetTopBox(request.store, free, box);
    Raise(request, kEventActivityChanged, free, source);
    activity = free;
  }
  if (activity < 0) throw BadRequest("every activity is taken");
  FCMarshal::EactivityIDToJson(static_cast<Activity>(activity), reply);
  Succeed(reply);
}

void Delete(Request& request, Json::Value& reply) {
  const int activity = ActivityOf(request);
  EraseSetTopBox(request.store, activity);
  Raise(request, kEventActivityChanged, activity, -1);
  FCMarshal::EactivityIDToJson(static_cast<Activity>(activity), reply);
  Succeed(reply);
}

void SetSource(Request& request, Json::Value& reply) {
  const int activity = ActivityOf(request);
  int source = -1;
  FCMarshal::JsonToSource(request.body, source);
  const int holder = ActivityOfSource(request.store, source);
  if (holder >= 0 && holder != activity) {
    throw BadRequest("source " + std::to_string(source) + " belongs to activity " + std::to_string(holder));
  }
  SetTopBox box = LoadSetTopBox(request.store, activity);
  box.source = source;
  SaveSetTopBox(request.store, activity, box);
  Raise(request, kEventActivityChanged, activity, source);
  Succeed(reply);
}

void GetBySource(Request& request, Json::Value& reply) {
  int source = -1;
  FCMarshal::JsonToSource(request.body, source);
  const int activity = ActivityOfSource(request.store, source);
  FCMarshal::EactivityIDToJson(static_cast<Activity>(activity), reply);
  reply["ret"] = activity >= 0;
}

// --- settings: one string each ---

template <std::string SetTopBox::*Field, bool (*Read)(Json::Value&, std::string&), SetTopBoxSetting Which>
void SetSetting(Request& request, Json::Value& reply) {
  const int activity = ActivityOf(request);
  SetTopBox box = LoadSetTopBox(request.store, activity);
  Read(request.body, box.*Field);
  SaveSetTopBox(request.store, activity, box);
  Raise(request, kEventSetTopBoxSetting, activity, Which);
  Succeed(reply);
}

template <std::string SetTopBox::*Field, bool (*Write)(std::string const&, Json::Value&)>
void GetSetting(Request& request, Json::Value& reply) {
  Write(LoadSetTopBox(request.store, ActivityOf(request)).*Field, reply);
  Succeed(reply);
}

// --- channel maps ---

void Unchanged(Request& request, Json::Value& reply) {
  ActivityOf(request);
  Succeed(reply);
}

void SetMap(Request& request, Json::Value& reply) {
  const int activity = ActivityOf(request);
  FCMBRNetworkChannelTable table;
  FCMarshal::JsonToMBRNetworkChannelTable(request.body, table);
  SetTopBox box = LoadSetTopBox(request.store, activity);
  box.channels = table.GetNetworkChannelList();
  for (FCMBRNetworkChannel& channel : box.channels) channel.SetActivityID(activity);
  CheckMapSize(request, box.channels);
  SaveSetTopBox(request.store, activity, box);
  Raise(request, kEventChannelMapChanged, activity, static_cast<int32_t>(box.channels.size()));
  Succeed(reply);
}

void GetMap(Request& request, Json::Value& reply) {
  const auto covered = QueryOf(request);
  ChannelList channels;
  for (const FCMBRNetworkChannel& channel : LoadSetTopBox(request.store, ActivityOf(request)).channels) {
    if (covered(channel)) channels.push_back(channel);
  }
  ReplyChannels(channels, reply);
}

void ExistInActivity(Request& request, Json::Value& reply) {
  const auto covered = QueryOf(request);
  const ChannelList channels = LoadSetTopBox(request.store, ActivityOf(request)).channels;
  reply["ret"] = std::any_of(channels.begin(), channels.end(), covered);
}

// The next channel after the current one in channel order, wrapping round;
// the current one need not be in the map.
void Step(Request& request, Json::Value& reply, bool up) {
  const FCMBRNetworkChannel current = ChannelOf(request);
  ChannelList channels = LoadSetTopBox(request.store, ActivityOf(request)).channels;
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

void ByMajorMinor(Request& request, Json::Value& reply) {
  int major = 0;
  int minor = 0;
  FCMarshal::JsonToMajorMinor(request.body, major, minor);
  ChannelList channels = LoadSetTopBox(request.store, ActivityOf(request)).channels;
  const auto found = FindMajorMinor(channels, major, minor);
  if (found == channels.end()) {
    reply["ret"] = false;
    return;
  }
  ReplyChannel(*found, reply);
}

void ExistByMajorMinor(Request& request, Json::Value& reply) {
  int major = 0;
  int minor = 0;
  FCMarshal::JsonToMajorMinor(request.body, major, minor);
  ChannelList channels = LoadSetTopBox(request.store, ActivityOf(request)).channels;
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
  for (const auto& channel : LoadSetTopBox(request.store, ActivityOf(request)).channels) table.AppendNetworkChannel(channel);
  FCMBRNetworkChannel found;
  if (!table.FindNetworkChannelByChannelIDOriginMajor(Number(channelId, "channel id"), Number(originMajor, "major"),
                                                      found)) {
    reply["ret"] = false;
    return;
  }
  ReplyChannel(found, reply);
}

void MaxMajorMinor(Request& request, Json::Value& reply) {
  int major = 0;
  int minor = 0;
  for (const auto& channel : LoadSetTopBox(request.store, ActivityOf(request)).channels) {
    major = std::max(major, channel.GetMajor());
    minor = std::max(minor, channel.GetMinor());
  }
  FCMarshal::MajorMinorToJson(major, minor, reply);
  Succeed(reply);
}

// Featured: the channels with a rank (m_acRank above 0), best rank first.
void Featured(Request& request, Json::Value& reply) {
  ChannelList featured;
  for (const auto& channel : LoadSetTopBox(request.store, ActivityOf(request)).channels) {
    if (channel.GetacRank() > 0) featured.push_back(channel);
  }
  featured.sort([](const auto& a, const auto& b) { return a.GetacRank() < b.GetacRank(); });
  ReplyChannels(featured, reply);
}

// --- changes to one channel of a map ---

// Applies `change` to the channel of the request (by major and minor) and
// saves the map; "ret" false when the map has no such channel.
template <typename Change>
void ChangeChannel(Request& request, Json::Value& reply, Change change) {
  const int activity = ActivityOf(request);
  const FCMBRNetworkChannel given = ChannelOf(request);
  SetTopBox box = LoadSetTopBox(request.store, activity);
  const auto found = FindMajorMinor(box.channels, given.GetMajor(), given.GetMinor());
  if (found == box.channels.end()) throw BadRequest("no channel " + std::to_string(given.GetMajor()) + "-" +
                                                    std::to_string(given.GetMinor()) + " in the map");
  change(box, found, given);
  SaveSetTopBox(request.store, activity, box);
  Succeed(reply);
}

void AddChannel(Request& request, Json::Value& reply) {
  const int activity = ActivityOf(request);
  FCMBRNetworkChannel channel = ChannelOf(request);
  SetTopBox box = LoadSetTopBox(request.store, activity);
  if (FindMajorMinor(box.channels, channel.GetMajor(), channel.GetMinor()) != box.channels.end()) {
    throw BadRequest("the map already holds that major and minor");
  }
  channel.SetActivityID(activity);
  box.channels.push_back(channel);
  CheckMapSize(request, box.channels);
  SaveSetTopBox(request.store, activity, box);
  Raise(request, kEventChannelMapChanged, activity, static_cast<int32_t>(box.channels.size()));
  Succeed(reply);
}

void Remember(Request& request, Json::Value& reply) {
  const bool on = request.body["ret"].asBool();
  ChangeChannel(request, reply, [on](SetTopBox&, ChannelList::iterator it, const auto&) { it->SetRemembered(on); });
}

void Remove(Request& request, Json::Value& reply) {
  ChangeChannel(request, reply, [&](SetTopBox& box, ChannelList::iterator it, const auto&) {
    box.channels.erase(it);
    Raise(request, kEventChannelMapChanged, ActivityOf(request), static_cast<int32_t>(box.channels.size()));
  });
}

void Favorite(Request& request, Json::Value& reply, bool on) {
  FCMBRNetworkChannel::EFavorite list;
  FCMarshal::JsonToEFavorite(request.body, list);
  if (list < 0 || list >= MBR_NETWORKCHANNEL_FAVORITE_MAX) {
    throw BadRequest("favourite list " + std::to_string(list) + " is not 0 to 4");
  }
  ChangeChannel(request, reply, [&](SetTopBox& box, ChannelList::iterator it, const auto&) {
    it->SetFavorite(list, on);
    const auto size = std::count_if(box.channels.begin(), box.channels.end(),
                                    [&](const FCMBRNetworkChannel& c) { return c.GetFavoriteBitSet()[list]; });
    Raise(request, kEventFavoriteChanged, ActivityOf(request), list, static_cast<int32_t>(size));
  });
}

void AddFavorite(Request& request, Json::Value& reply) { Favorite(request, reply, true); }
void DeleteFavorite(Request& request, Json::Value& reply) { Favorite(request, reply, false); }

// An edit may change the major and minor: the channel is found by its
// channel id and origin major instead.
void Edit(Request& request, Json::Value& reply) {
  const int activity = ActivityOf(request);
  FCMBRNetworkChannel edited = ChannelOf(request);
  SetTopBox box = LoadSetTopBox(request.store, activity);
  const auto found = std::find_if(box.channels.begin(), box.channels.end(), [&](const FCMBRNetworkChannel& c) {
    return c.GetChannelID() == edited.GetChannelID() && c.GetOriginMajor() == edited.GetOriginMajor();
  });
  if (found == box.channels.end()) throw BadRequest("no channel with that channel id and origin major");
  edited.SetActivityID(activity);
  *found = edited;
  SaveSetTopBox(request.store, activity, box);
  Succeed(reply);
}

void EditCompleted(Request& request, Json::Value& reply) {
  Raise(request, kEventChannelEditCompleted, ActivityOf(request));
  Succeed(reply);
}

// --- programme maps ---

void SetPrograms(Request& request, Json::Value& reply) {
  std::string channelId;
  FCMarshal::JsonToChannelID(request.body, channelId);
  FCMBRNetworkProgramTable programs;
  FCMarshal::JsonToMBRProgramTable(request.body, programs);
  SavePrograms(request.store, channelId, programs, request.limits.programMaps);
  Raise(request, kEventProgramMapChanged, static_cast<int32_t>(programs.GetNetworkProgramMap().size()), 0);
  Succeed(reply);
}

void GetPrograms(Request& request, Json::Value& reply) {
  std::string channelId;
  FCMarshal::JsonToChannelID(request.body, channelId);
  FCMBRNetworkProgramTable programs = LoadPrograms(request.store, channelId);
  FCMarshal::MBRProgramTableToJson(programs, reply);
  Succeed(reply);
}

void ClearAllPrograms(Request& request, Json::Value& reply) {
  ClearPrograms(request.store);
  Raise(request, kEventProgramMapChanged, 0, 1);
  Succeed(reply);
}

void ProgramAt(Request& request, Json::Value& reply, unsigned long time) {
  const FCMBRNetworkChannel channel = ChannelOf(request);
  FCMBRNetworkProgram program;
  if (!LoadPrograms(request.store, std::to_string(channel.GetChannelID())).FindNetworkProgrambyStartTime(time, program)) {
    reply["ret"] = false;
    return;
  }
  FCMarshal::MBRProgramToJson(program, reply);
  Succeed(reply);
}

void ProgramNow(Request& request, Json::Value& reply) {
  ActivityOf(request);
  ProgramAt(request, reply, static_cast<unsigned long>(std::time(nullptr)));
}

void ProgramAtTime(Request& request, Json::Value& reply) {
  ActivityOf(request);
  unsigned long time = 0;
  FCMarshal::JsonToCurrentTime(request.body, time);
  ProgramAt(request, reply, time);
}

const RequiredKey kActivity{"activityID", T::Int};
const RequiredKey kMajor{"m_major", T::Int};
const RequiredKey kMinor{"m_minor", T::Int};

}  // namespace

const MemberTable& SetTopBoxMembers() {
  static const MemberTable table = {
      {"AllocateActivityIDBySourceID", {{"source", T::Int}}, Allocate, true},
      {"DeleteActivityID", {kActivity}, Delete, true},
      {"SetActivityIDSourceID", {kActivity, {"source", T::Int}}, SetSource, true},
      {"GetActivityIDBySourceID", {{"source", T::Int}}, GetBySource, false},
      {"SetZipCode", {kActivity, {"zip code", T::String}},
       SetSetting<&SetTopBox::zipCode, FCMarshal::JsonToZipCode, kZipCode>, true},
      {"GetZipCode", {kActivity}, GetSetting<&SetTopBox::zipCode, FCMarshal::ZipCodeToJson>, false},
      {"SetHeadEndID", {kActivity, {"headend id", T::String}},
       SetSetting<&SetTopBox::headEndId, FCMarshal::JsonToHeadEndID, kHeadEndId>, true},
      {"GetHeadEndID", {kActivity}, GetSetting<&SetTopBox::headEndId, FCMarshal::HeadEndIDToJson>, false},
      {"SetDeviceType", {kActivity, {"device type", T::String}},
       SetSetting<&SetTopBox::deviceType, FCMarshal::JsonToDeviceType, kDeviceType>, true},
      {"GetDeviceType", {kActivity}, GetSetting<&SetTopBox::deviceType, FCMarshal::DeviceTypeToJson>, false},
      {"SetLocation", {kActivity, {"location", T::String}},
       SetSetting<&SetTopBox::location, FCMarshal::JsonToLocation, kLocation>, true},
      {"GetLocation", {kActivity}, GetSetting<&SetTopBox::location, FCMarshal::LocationToJson>, false},
      {"ConstructMBRNetworkChannelMap", {kActivity}, Unchanged, false},
      {"ConstructMBRNetworkProgramMap", {kActivity}, Unchanged, false},
      {"SaveMBRNetworkChannelMap", {kActivity}, Unchanged, false},
      {"SetMBRNetworkChannelMap", {kActivity}, SetMap, true},
      {"GetMBRNetworkChannelMap", {kActivity, {"query type", T::Int}}, GetMap, false},
      {"ExistChannelInActivityID", {kActivity, {"query type", T::Int}}, ExistInActivity, false},
      {"GetMBRNetworkChannelUp", {kActivity, kMajor, kMinor}, Up, false},
      {"GetMBRNetworkChannelDown", {kActivity, kMajor, kMinor}, Down, false},
      {"GetMBRNetworkChannelByMajorMinor", {kActivity, {"major", T::Int}, {"minor", T::Int}}, ByMajorMinor, false},
      {"ExistMBRNetworkChannelByMajorMinor", {kActivity, {"major", T::Int}, {"minor", T::Int}}, ExistByMajorMinor,
       false},
      {"GetMBRNetworkChannelByChannelIDOriginMajor", {kActivity, {"channel id", T::String}, {"major", T::String}},
       ByChannelIdOriginMajor, false},
      {"GetMaxNumberOfMajorMinor", {kActivity}, MaxMajorMinor, false},
      {"GetFeaturedMBRChannels", {kActivity}, Featured, false},
      {"AddNewMBRNetworkChannel", {kActivity, kMajor, kMinor}, AddChannel, true},
      {"SetRememberMBRNetworkChannel", {kActivity, kMajor, kMinor, {"ret", T::Bool}}, Remember, true},
      {"RemoveMBRNetworkChannel", {kActivity, kMajor, kMinor}, Remove, true},
      {"AddFavoriteMBRNetworkChannel", {kActivity, {"favorite", T::Int}, kMajor, kMinor}, AddFavorite, true},
      {"DeleteFavoriteMBRNetworkChannel", {kActivity, {"favorite", T::Int}, kMajor, kMinor}, DeleteFavorite, true},
      {"SetEditedMBRNetworkChannel", {kActivity, {"m_channelID", T::Int}, {"m_originMajor", T::Int}}, Edit, true},
      {"NotifyMBRChannelEditCompleted", {kActivity}, EditCompleted, false},
      {"SetMBRNetworkProgramMap", {{"channelID", T::String}}, SetPrograms, true},
      {"GetMBRNetworkProgrmaMap", {{"channelID", T::String}}, GetPrograms, false},
      {"ClearMBRProgramMap", {}, ClearAllPrograms, true},
      {"GetCurrentMBRNetworkProgram", {kActivity, {"m_channelID", T::Int}}, ProgramNow, false},
      {"GetCurrentMBRNetworkProgrambyCurrentTimebyCurrentTime",
       {kActivity, {"current time", T::UInt}, {"m_channelID", T::Int}},
       ProgramAtTime,
       false},
  };
  return table;
}

}  // namespace zunde::service
