// zunde-cli rf: broadcast channels by genre and the meta programme guide.
#include <ZundeProvider.h>

#include "command_table.h"

namespace zcli {
namespace {

using Api = FCRFNetworkChannelAPI;
Api* Rf() { return FCAPI::GetRFNetworkChannelAPI(); }

const Arg kGenre{"GENRE", Kind::Text, "genre"};
const Arg kService{"SERVICE_ID", Kind::Unsigned64, "broadcast service id"};
const Arg kProgram{"PROGRAM", Kind::Json, "a programme's JSON form", ShapeOf<FCRemoteProgram>()};
const std::vector<std::string> kProgramColumns = {"key", "program source id", "utc start time", "duration", "title"};

// Channel up or down within a genre.
Command Step(const char* name, const char* help,
             bool (Api::*method)(std::string, unsigned long long&, unsigned long long&)) {
  return {name, help, std::string("zunde-cli rf ") + name + " G01 38293928476773", {kGenre, kService},
          [method](const Args& a, Json::Value& out) {
            unsigned long long current = a.u(1), next = 0;
            const bool ok = (Rf()->*method)(a.s(0), current, next);
            out["service_id"] = Json::UInt64(next);
            return ok;
          }};
}

// The programme before or after the one given.
Command Beside(const char* name, const char* help,
               bool (Api::*method)(FCRemoteProgram const&, FCRemoteProgram&)) {
  return {name, help, std::string("zunde-cli rf ") + name +
                       R"( "{\"program id\": \"38293928476773:$(date +%s)\", \"utc start time\": $(date +%s)}")",
          {kProgram}, [method](const Args& a, Json::Value& out) {
            FCRemoteProgram found;
            const bool ok = (Rf()->*method)(a.rec<FCRemoteProgram>(0), found);
            out = J(found);
            return ok;
          }};
}

Json::Value GenresShape() {
  std::vector<FCRepGenreInfo> genres(1);
  Json::Value shape(Json::objectValue);
  FCMarshal::RepGenreListToJson(genres, shape);
  return shape;
}

}  // namespace

Family BroadcastFamily() {
  return {"rf", "Broadcast channels: genre navigation and the meta programme guide", {
    {"set-mode", "Set the navigation mode", "zunde-cli rf set-mode 1", {{"MODE", Kind::Int, "navigation mode"}},
     [](const Args& a, Json::Value&) { return Rf()->SetNavigationMode(static_cast<Api::ENavigationMode>(a.i(0))); }},
    {"get-mode", "Show the navigation mode", "zunde-cli rf get-mode", {},
     [](const Args&, Json::Value& out) {
       Api::ENavigationMode mode{};
       const bool ok = Rf()->GetNavigationMode(mode);
       out["mode"] = static_cast<int>(mode);
       return ok;
     }},
    {"set-genre", "Set the genre that channel up and down follow", "zunde-cli rf set-genre G01", {kGenre},
     [](const Args& a, Json::Value&) { return Rf()->SetGenreForNavigation(a.s(0)); }},
    {"get-genre", "Show the genre that channel up and down follow", "zunde-cli rf get-genre", {},
     [](const Args&, Json::Value& out) {
       std::string genre;
       const bool ok = Rf()->GetGenreForNavigation(genre);
       out["genre"] = genre;
       return ok;
     }},
    {"channels", "The channels of a genre", "zunde-cli rf channels G01", {kGenre},
     [](const Args& a, Json::Value& out) {
       FCRFNetworkChannelTable table;
       const bool ok = Rf()->GetRFNetworkChannelMapByGenre(a.s(0), table);
       out["service_ids"] = Json::Value(Json::arrayValue);
       for (unsigned long long id : table.GetRFNetworkChannelList()) out["service_ids"].append(Json::UInt64(id));
       return ok;
     }},
    Step("up", "The next channel of a genre", &Api::GetRFNetworkChannelUpByGenre),
    Step("down", "The previous channel of a genre", &Api::GetRFNetworkChannelDownByGenre),
    {"count", "The number of channels of a genre (status 1 when none)", "zunde-cli rf count G01", {kGenre},
     [](const Args& a, Json::Value& out) { return (out["count"] = Rf()->GetRFNetworkChannelCountByGenre(a.s(0))).asInt() > 0; }},
    {"counts", "The number of channels of each genre", "zunde-cli rf counts '{\"out_array_rep_genre\": [{\"str_rep_id\": \"R1\"}]}'",
     {{"GENRES", Kind::Json, "{\"out_array_rep_genre\": [genres]}", GenresShape()}},
     [](const Args& a, Json::Value& out) {
       std::vector<FCRepGenreInfo> genres;
       Json::Value value = a.json(0);
       FCMarshal::JsonToRepGenreList(value, genres);
       std::map<std::string, int> counts;
       const bool ok = Rf()->GetRFNetworkChannelCountByGenreList(genres, counts);
       FCMarshal::CountMapToJson(counts, out);
       return ok;
     }},
    {"present", "The programme on a broadcast service now", "zunde-cli rf present 38293928476773", {kService},
     [](const Args& a, Json::Value& out) {
       const unsigned long long service = a.u(0);
       FCRemoteProgram program;
       const bool ok = Rf()->GetPresentMetaProgram(service, program);
       out = J(program);
       return ok;
     }},
    Beside("next", "The programme after the one given", &Api::GetNextMetaProgram),
    Beside("prev", "The programme before the one given", &Api::GetPrevMetaProgram),
    {"programs", "The meta programmes of a service in a time window", "zunde-cli rf programs 38293928476773 now 7200",
     {kService, {"START", Kind::Time, "seconds since the epoch, now, now+90m or HH:MM"}, {"DURATION", Kind::Int, "seconds"}},
     [](const Args& a, Json::Value& out) {
       const unsigned long long service = a.u(0);
       std::map<unsigned int, FCRemoteProgram> programs;
       const bool ok = Rf()->GetMetaProgramMap(service, a.u(1), a.i(2), programs);
       FCMarshal::MetaProgramMapToJson(programs, out);
       return ok;
     }, kProgramColumns},
    YesNo({"has-programs", "Whether any meta programme exists (status 1 when not)", "zunde-cli rf has-programs", {},
           [](const Args&, Json::Value& out) { return (out["exists"] = Rf()->CheckMetaProgramExist()).asBool(); }}),
    Local({"reset", "Reset the broadcast channel state", "zunde-cli rf reset", {},
           [](const Args&, Json::Value&) { return Rf()->Reset(); }}),
  }};
}

}  // namespace zcli
