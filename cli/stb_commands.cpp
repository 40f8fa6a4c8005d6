// zunde-cli stb: the set-top-box channel manager, per activity slot.
#include <ZundeProvider.h>

#include "command_table.h"

namespace zcli {
namespace {

using Api = FCMBRNetworkChannelAPI;
Api* Stb() { return FCAPI::GetMBRNetworkChannelAPI(); }
Api::EActivityID Act(const Args& a) { return static_cast<Api::EActivityID>(a.i(0)); }

const Arg kAct{"ACTIVITY", Kind::Int, "activity slot, 0 to 4"};
Json::Value ChannelShape() {
  FCMBRNetworkChannel channel;
  Json::Value shape(Json::objectValue);
  FCMarshal::MBRNetworkChannelToJson(channel, shape);
  return shape;
}
Json::Value ChannelTableShape() {
  FCMBRNetworkChannelTable table;
  table.AppendNetworkChannel(FCMBRNetworkChannel());
  Json::Value shape(Json::objectValue);
  FCMarshal::MBRNetworkChannelTableToJson(table, shape);
  return shape;
}
Json::Value ProgramTableShape() {
  FCMBRNetworkProgramTable table;
  FCMBRNetworkProgram program;
  table.AppendNetworkProgram(program);
  Json::Value shape(Json::objectValue);
  FCMarshal::MBRProgramTableToJson(table, shape);
  return shape;
}

const Arg kChannel{"CHANNEL", Kind::Json, "a channel's JSON form, e.g. '{\"m_major\": 7, \"m_minor\": 1, \"m_channelID\": 7}'",
                   ChannelShape()};
const Arg kQuery{"QUERY", Kind::Int, "0 every channel, 1 remembered, 2 favourites, 3 digital"};

Json::Value Of(FCMBRNetworkChannel& channel) {
  Json::Value value(Json::objectValue);
  FCMarshal::MBRNetworkChannelToJson(channel, value);
  return value;
}
Json::Value Of(FCMBRNetworkProgram& program) {
  Json::Value value(Json::objectValue);
  FCMarshal::MBRProgramToJson(program, value);
  return value;
}
FCMBRNetworkChannel ChannelArg(const Args& a, size_t n) {
  FCMBRNetworkChannel channel;
  Json::Value value = a.json(n);
  FCMarshal::JsonToMBRNetworkChannel(value, channel);
  return channel;
}

// Rows for a setting kept per activity: "set-NAME ACTIVITY VALUE" and "get-NAME ACTIVITY".
std::vector<Command> Setting(const char* name, const char* what, const char* sample,
                             bool (Api::*set)(Api::EActivityID, std::string&),
                             bool (Api::*get)(Api::EActivityID, std::string&)) {
  const std::string s = std::string("set-") + name, g = std::string("get-") + name;
  return {
      {s, (std::string("Set the ") + what),
       ("zunde-cli stb " + s + " 0 " + sample), {kAct, {"VALUE", Kind::Text, what}},
       [set](const Args& a, Json::Value&) {
         std::string value = a.s(1);
         return (Stb()->*set)(Act(a), value);
       }},
      {g, (std::string("Show the ") + what),
       ("zunde-cli stb " + g + " 0"), {kAct},
       [get, name](const Args& a, Json::Value& out) {
         std::string value;
         const bool ok = (Stb()->*get)(Act(a), value);
         out[name] = value;
         return ok;
       }},
  };
}

// A call on one channel given as JSON, answering nothing but its result.
Command OnChannel(const char* name, const char* help, const char* example, bool (Api::*method)(Api::EActivityID,
                                                                                                FCMBRNetworkChannel&)) {
  return {name, help, example, {kAct, kChannel}, [method](const Args& a, Json::Value& out) {
            FCMBRNetworkChannel channel = ChannelArg(a, 1);
            const bool ok = (Stb()->*method)(Act(a), channel);
            out["channel"] = Of(channel);
            return ok;
          }};
}

// Channel up or down from the channel given.
Command Step(const char* name, const char* help, bool (Api::*method)(Api::EActivityID, FCMBRNetworkChannel&,
                                                                     FCMBRNetworkChannel&)) {
  return {name, help, (std::string("zunde-cli stb ") + name + " 0 '{\"m_major\": 7, \"m_minor\": 1, \"m_channelID\": 7}'"),
          {kAct, kChannel}, [method](const Args& a, Json::Value& out) {
            FCMBRNetworkChannel current = ChannelArg(a, 1), next;
            const bool ok = (Stb()->*method)(Act(a), current, next);
            out = Of(next);
            return ok;
          }};
}

// A call on the activity alone.
Command OnActivity(const char* name, const char* help, bool (Api::*method)(Api::EActivityID)) {
  return {name, help, (std::string("zunde-cli stb ") + name + " 0"), {kAct},
          [method](const Args& a, Json::Value&) { return (Stb()->*method)(Act(a)); }};
}

const std::vector<std::string> kChannelColumns = {"m_major", "m_minor", "m_name", "m_channelID", "m_remembered",
                                                  "m_bDigital", "bit set", "m_acRank"};

std::vector<Command> Commands() {
  std::vector<Command> rows = {
    {"allocate", "Allocate an activity slot for a TV source", "zunde-cli stb allocate 3",
     {{"SOURCE", Kind::Int, "TV input source"}},
     [](const Args& a, Json::Value& out) {
       Api::EActivityID activity{};
       const bool ok = Stb()->AllocateActivityIDBySourceID(a.i(0), activity);
       out["activity"] = static_cast<int>(activity);
       return ok;
     }},
    OnActivity("delete", "Delete an activity slot", &Api::DeleteActivityID),
    // After the slot is deleted, so that the examples after them find a channel and its programme.
    {"set-channels", "Replace the channel map", "zunde-cli stb set-channels 0 '{\"MBR channel table\": [{\"m_major\": 7, \"m_originMajor\": 7, \"m_minor\": 1, \"m_name\": \"News\", \"m_channelID\": 7}]}'",
     {kAct, {"TABLE", Kind::Json, "{\"MBR channel table\": [channels]}", ChannelTableShape()}},
     [](const Args& a, Json::Value&) {
       FCMBRNetworkChannelTable table;
       Json::Value value = a.json(1);
       FCMarshal::JsonToMBRNetworkChannelTable(value, table);
       return Stb()->SetMBRNetworkChannelMap(Act(a), table);
     }},
    {"set-programs", "Replace the programme map of a channel id",
     "zunde-cli stb set-programs 7 '{\"mbrProgramTable\": [{\"m_startTime\": 1767225600, \"m_duration\": 315360000, \"m_title\": \"News loop\", \"m_channelID\": 7, \"m_programID\": \"n1\"}]}'",
     {{"CHANNEL_ID", Kind::Text, "channel id"}, {"TABLE", Kind::Json, "{\"mbrProgramTable\": [programmes]}", ProgramTableShape()}},
     [](const Args& a, Json::Value&) {
       FCMBRNetworkProgramTable table;
       Json::Value value = a.json(1);
       FCMarshal::JsonToMBRProgramTable(value, table);
       return Stb()->SetMBRNetworkProgramMap(table, a.s(0));
     }},
    {"bind", "Bind an activity slot to a TV source", "zunde-cli stb bind 0 3",
     {kAct, {"SOURCE", Kind::Int, "TV input source"}},
     [](const Args& a, Json::Value&) { return Stb()->SetActivityIDSourceID(Act(a), static_cast<ESource>(a.i(1))); }},
    {"activity-of", "The activity slot bound to a TV source", "zunde-cli stb activity-of 3",
     {{"SOURCE", Kind::Int, "TV input source"}},
     [](const Args& a, Json::Value& out) {
       Api::EActivityID activity{};
       const bool ok = Stb()->GetActivityIDBySourceID(a.i(0), activity);
       out["activity"] = static_cast<int>(activity);
       return ok;
     }},
    OnActivity("build-channel-map", "Construct the channel map", &Api::ConstructMBRNetworkChannelMap),
    OnActivity("build-program-map", "Construct the programme map", &Api::ConstructMBRNetworkProgramMap),
    OnActivity("save", "Save the channel map", &Api::SaveMBRNetworkChannelMap),
    OnActivity("edit-done", "Tell the service the user's channel edit is complete",
               &Api::NotifyMBRChannelEditCompleted),
    {"current-program", "The programme on a channel now", "zunde-cli stb current-program 0 '{\"m_major\": 7, \"m_minor\": 1, \"m_channelID\": 7}'",
     {kAct, kChannel},
     [](const Args& a, Json::Value& out) {
       FCMBRNetworkChannel channel = ChannelArg(a, 1);
       FCMBRNetworkProgram program;
       const bool ok = Stb()->GetCurrentMBRNetworkProgram(Act(a), channel, program);
       out["channel"] = Of(channel);
       out["program"] = Of(program);
       return ok;
     }},
    {"program-at", "The programme on a channel at a time", "zunde-cli stb program-at 0 '{\"m_major\": 7, \"m_minor\": 1}' now",
     {kAct, kChannel, {"TIME", Kind::Time, "seconds since the epoch, now, now+90m or HH:MM"}},
     [](const Args& a, Json::Value& out) {
       FCMBRNetworkChannel channel = ChannelArg(a, 1);
       FCMBRNetworkProgram program;
       const bool ok = Stb()->GetCurrentMBRNetworkProgrambyCurrentTime(Act(a), a.u(2), channel, program);
       out["channel"] = Of(channel);
       out["program"] = Of(program);
       return ok;
     }},
    {"channels", "List the channel map", "zunde-cli stb channels 0 0", {kAct, kQuery},
     [](const Args& a, Json::Value& out) {
       FCMBRNetworkChannelTable table;
       const bool ok = Stb()->GetMBRNetworkChannelMap(Act(a), table, static_cast<Api::EMBRNetworkChannelQuery>(a.i(1)));
       FCMarshal::MBRNetworkChannelTableToJson(table, out);
       return ok;
     }, kChannelColumns},
    Step("up", "The channel after the one given", &Api::GetMBRNetworkChannelUp),
    Step("down", "The channel before the one given", &Api::GetMBRNetworkChannelDown),
    {"find", "The channel of a major and minor number", "zunde-cli stb find 0 7 1",
     {kAct, {"MAJOR", Kind::Int, "major number"}, {"MINOR", Kind::Int, "minor number"}},
     [](const Args& a, Json::Value& out) {
       FCMBRNetworkChannel channel;
       const bool ok = Stb()->GetMBRNetworkChannelByMajorMinor(Act(a), a.i(1), a.i(2), channel);
       out = Of(channel);
       return ok;
     }},
    YesNo({"exists", "Whether a major and minor number is in the map (status 1 when not)", "zunde-cli stb exists 0 7 1",
     {kAct, {"MAJOR", Kind::Int, "major number"}, {"MINOR", Kind::Int, "minor number"}},
     [](const Args& a, Json::Value& out) {
       return (out["exists"] = Stb()->ExistMBRNetworkChannelByMajorMinor(Act(a), a.i(1), a.i(2))).asBool();
     }}),
    OnChannel("add", "Add a channel", "zunde-cli stb add 0 '{\"m_major\": 9, \"m_minor\": 1, \"m_name\": \"Films\", \"m_channelID\": 9}'",
              &Api::AddNewMBRNetworkChannel),
    OnChannel("remove", "Remove a channel", "zunde-cli stb remove 0 '{\"m_major\": 9, \"m_minor\": 1}'",
              &Api::RemoveMBRNetworkChannel),
    {"edit", "Store the user's edit of a channel (found by channel id and origin major); only the fields given change",
     "zunde-cli stb edit 0 '{\"m_channelID\": 7, \"m_originMajor\": 7, \"m_name\": \"My news\"}'",
     {kAct, kChannel},
     [](const Args& a, Json::Value& out) {
       const Json::Value given = a.json(1);
       FCMBRNetworkChannel channel;
       if (!Stb()->GetMBRNetworkChannelByChannelIDOriginMajor(Act(a), std::to_string(given["m_channelID"].asInt()),
                                                              std::to_string(given["m_originMajor"].asInt()), channel))
         return false;
       Json::Value merged = a.over(1, Of(channel));
       FCMarshal::JsonToMBRNetworkChannel(merged, channel);
       const bool ok = Stb()->SetEditedMBRNetworkChannel(Act(a), channel);
       out["channel"] = Of(channel);
       return ok;
     }},
    {"remember", "Remember a channel or forget it", "zunde-cli stb remember 0 '{\"m_major\": 7, \"m_minor\": 1}' true",
     {kAct, kChannel, {"REMEMBER", Kind::Bool, "true or false"}},
     [](const Args& a, Json::Value&) {
       FCMBRNetworkChannel channel = ChannelArg(a, 1);
       return Stb()->SetRememberMBRNetworkChannel(Act(a), channel, a.b(2));
     }},
    {"add-favorite", "Add a channel to a favourite list", "zunde-cli stb add-favorite 0 1 '{\"m_major\": 7, \"m_minor\": 1, \"m_channelID\": 7}'",
     {kAct, {"LIST", Kind::Int, "favourite list, 0 to 4"}, kChannel},
     [](const Args& a, Json::Value&) {
       FCMBRNetworkChannel channel = ChannelArg(a, 2);
       return Stb()->AddFavoriteMBRNetworkChannel(Act(a), static_cast<FCMBRNetworkChannel::EFavorite>(a.i(1)), channel);
     }},
    {"delete-favorite", "Delete a channel from a favourite list",
     "zunde-cli stb delete-favorite 0 1 '{\"m_major\": 7, \"m_minor\": 1, \"m_channelID\": 7}'",
     {kAct, {"LIST", Kind::Int, "favourite list, 0 to 4"}, kChannel},
     [](const Args& a, Json::Value&) {
       FCMBRNetworkChannel channel = ChannelArg(a, 2);
       return Stb()->DeleteFavoriteMBRNetworkChannel(Act(a), static_cast<FCMBRNetworkChannel::EFavorite>(a.i(1)),
                                                     channel);
     }},
    {"programs", "The programme map of a channel id", "zunde-cli stb programs 7", {{"CHANNEL_ID", Kind::Text, "channel id"}},
     [](const Args& a, Json::Value& out) {
       FCMBRNetworkProgramTable table;
       const bool ok = Stb()->GetMBRNetworkProgrmaMap(table, a.s(0));
       FCMarshal::MBRProgramTableToJson(table, out);
       return ok;
     }, {"m_startTime", "m_duration", "m_title", "m_channelID", "m_programID"}},
    {"clear-programs", "Clear every programme map", "zunde-cli stb clear-programs", {},
     [](const Args&, Json::Value&) {
       Stb()->ClearMBRProgramMap();
       return true;
     }},
    {"max-major-minor", "The highest major and minor numbers", "zunde-cli stb max-major-minor 0", {kAct},
     [](const Args& a, Json::Value& out) {
       int major = 0, minor = 0;
       const bool ok = Stb()->GetMaxNumberOfMajorMinor(Act(a), major, minor);
       out["major"] = major;
       out["minor"] = minor;
       return ok;
     }},
    YesNo({"has-channels", "Whether a query finds any channel (status 1 when not)", "zunde-cli stb has-channels 0 0",
     {kAct, kQuery},
     [](const Args& a, Json::Value& out) {
       return (out["exists"] = Stb()->ExistChannelInActivityID(Act(a), static_cast<Api::EMBRNetworkChannelQuery>(a.i(1))))
           .asBool();
     }}),
    {"featured", "The featured channels, best first", "zunde-cli stb featured 0", {kAct},
     [](const Args& a, Json::Value& out) {
       FCMBRNetworkChannelTable table;
       const bool ok = Stb()->GetFeaturedMBRChannels(Act(a), table);
       FCMarshal::MBRNetworkChannelTableToJson(table, out);
       return ok;
     }, kChannelColumns},
    {"find-by-id", "The channel of a channel id and origin major", "zunde-cli stb find-by-id 0 7 7",
     {kAct, {"CHANNEL_ID", Kind::Text, "channel id"}, {"ORIGIN_MAJOR", Kind::Text, "origin major number"}},
     [](const Args& a, Json::Value& out) {
       FCMBRNetworkChannel channel;
       const bool ok = Stb()->GetMBRNetworkChannelByChannelIDOriginMajor(Act(a), a.s(1), a.s(2), channel);
       out = Of(channel);
       return ok;
     }},
    Local({"reset", "Reset every activity", "zunde-cli stb reset", {},
           [](const Args&, Json::Value&) { return Stb()->Reset(); }}),
  };
  for (auto [name, what, sample, set, get] :
       {std::make_tuple("zip", "zip code", "10001", &Api::SetZipCode, &Api::GetZipCode),
        std::make_tuple("info", "additional information", "'{\"room\": \"den\"}'", &Api::SetAdditionalInfo,
                        &Api::GetAdditionalInfo),
        std::make_tuple("device", "device type", "cable", &Api::SetDeviceType, &Api::GetDeviceType),
        std::make_tuple("headend", "head-end id", "NY31519", &Api::SetHeadEndID, &Api::GetHeadEndID),
        std::make_tuple("location", "location", "living-room", &Api::SetLocation, &Api::GetLocation)})
    for (Command& row : Setting(name, what, sample, set, get)) {
      // The library answers these with false: there is no example that succeeds.
      if (set == &Api::SetAdditionalInfo) row = Local(row), row.example.clear();
      rows.push_back(row);
    }
  return rows;
}

}  // namespace

Family SetTopBoxFamily() {
  return {"stb", "Set-top-box channels per activity slot: settings, channel map, favourites, edits, programmes",
          Commands()};
}

}  // namespace zcli
