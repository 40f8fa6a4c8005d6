// Parses the input as a reply, as a proxy does, and hands the document to
// every reader of every family: the FCMarshal readers and the records'
// FromJson. A value of the wrong JSON type makes jsoncpp throw, and a
// malformed favourite set makes std::bitset throw; both pass to the caller
// by design and are caught here, and nothing else is.
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <stdexcept>
#include <tuple>
#include <type_traits>

#include "FCMarshal.h"
#include "FCRFNetworkChannelTable.h"

namespace {

// A programme that does not convert ends the process on purpose: its reader
// catches the jsoncpp error and asserts. Here that one assertion throws
// instead, so that the run goes on; every other assertion still aborts.
struct ProgrammeRefused {};

template <typename... Outs>
void Read(bool (*reader)(Json::Value&, Outs&...), Json::Value& root) {
  std::tuple<std::remove_reference_t<Outs>...> outs;
  try {
    std::apply([&](auto&... out) { reader(root, out...); }, outs);
  } catch (const Json::Exception&) {
  } catch (const std::invalid_argument&) {
  } catch (const ProgrammeRefused&) {
  }
}

using F = FCMarshal;

}  // namespace

[[noreturn]] void _FCAssert(const char* expression, const char* file, unsigned long line) {
  if (std::strcmp(expression, "0") == 0 && std::strstr(file, "FCElementData")) throw ProgrammeRefused{};
  std::fprintf(stderr, "Assertion failed: %s (%lu) - %s\n", file, line, expression);
  std::abort();
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  std::string text(reinterpret_cast<const char*>(data), size);
  FCRemoteProgram fromText;
  try {
    fromText.from_string(text);
  } catch (const ProgrammeRefused&) {
  }
  Json::Value root;
  try {
    if (!F::ParseToJson(text, root)) return 0;
  } catch (const Json::Exception&) {  // nested deeper than jsoncpp's limit
    return 0;
  }
  // Remote content environment.
  Read(&F::JsonToCountryAndLang, root), Read(&F::JsonToatoken, root), Read(&F::JsonToactivityID, root);
  Read(static_cast<bool (*)(Json::Value&, ESource&, int&)>(&F::JsonToTVSourceAndTVMode), root);
  Read(static_cast<bool (*)(Json::Value&, ESource&, int&, int&)>(&F::JsonToTVSourceAndTVMode), root);
  Read(&F::JsonToRecommendTypeOption, root), Read(&F::JsonToUserID, root);
  // Operator catalogue, recommendations, match finder.
  Read(&F::JsonToFCRemoteMSOConfig, root), Read(&F::JsonToFCRemoteChannel, root);
  Read(&F::JsonToFCRemoteProgram, root), Read(&FCRemoteChannelKey::FromJson, root);
  Read(&FCFilterCriteria::FromJson, root), Read(&F::JsonToChannelList, root), Read(&F::JsonToGenreList, root);
  Read(&F::JsonToRepGenreList, root), Read(&F::JsonToRecGroupMap, root), Read(&F::JsonToProgramSourceMap, root);
  Read(&F::JsonToProgramMap, root), Read(&F::JsonToSourceIDListAndUtcStartTimeAndDurationAndFCFilterCriteria, root);
  Read(&F::JsonToSourceIDListAndUtcStartTimeAndDuration, root), Read(&F::JsonToUtcCurrentTime, root);
  Read(&F::JsonToProgramSourceIDAndUtcCurrentTime, root), Read(&F::JsonToMBRChannelAndUTCCurrentTime, root);
  Read(&F::JsonToSearchString, root), Read(&F::JsonToTCServiceId, root);
  Read(&F::UnmarshalingForGetRecommendationOnNow, root), Read(&F::UnmarshalingForGetRecommendationUpcoming, root);
  Read(&F::UnmarshalingForGetRecommendationTimeline, root);
  Read(&F::UnmarshalingForGetRecommendationFutureTimeline, root), Read(&F::JsonToFCSmartChannelGuideList, root);
  Read(&F::JsonToTimeLine, root), Read(&F::JsonToFutureTimeLine, root);
  Read(&F::JsonToCertRule, root), Read(&F::JsonToVODProvider, root);
  // Set-top-box channels.
  Read(&F::JsonToMBRNetworkChannel, root), Read(&F::JsonToMBRProgram, root);
  Read(&F::JsonToMBRNetworkChannelTable, root), Read(&F::JsonToMBRProgramTable, root);
  Read(&F::JsonToEactivityID, root), Read(&F::JsonToSource, root), Read(&F::JsonToHeadEndID, root);
  Read(&F::JsonToZipCode, root), Read(&F::JsonToDeviceType, root), Read(&F::JsonToLocation, root);
  Read(&F::JsonToQueryType, root), Read(&F::JsonToCurrentTime, root), Read(&F::JsonToChannelID, root);
  Read(&F::JsonToEFavorite, root), Read(&F::JsonToMajorMinor, root), Read(&F::JsonToChannelIdMajor, root);
  // Broadcast channels.
  Read(&F::JsonToNavigationMode, root), Read(&F::JsonToGenre, root), Read(&F::JsonToCount, root);
  Read(&F::JsonToStartTime, root), Read(&F::JsonToDuration, root), Read(&F::JsonToRFNetworkChannelTable, root);
  Read(&F::JsonToCountMap, root), Read(&F::JsonToMetaProgramMap, root);
  // Virtual channels.
  Read(&F::VCJsonToServiceId, root), Read(&F::JsonToEProgramIndicator, root), Read(&F::JsonToLogoSize, root);
  Read(&F::JsonToProgramLogoType, root), Read(&F::JsonToChannelLogo, root), Read(&F::JsonToProgramLogo, root);
  Read(&F::JsonToOnTvProviderId, root), Read(&F::JsonToOnTvServiceId, root), Read(&F::JsonToImageDownloadId, root);
  Read(&F::JsonToKPIInfo, root), Read(&F::JsonToVirtualProgramId, root), Read(&F::JsonToVirtualProgramData, root);
  Read(&F::JsonToVirtualConfig, root), Read(&F::JsonToVirtualChannelInfo, root);
  Read(&F::JsonToVirtualProgramMap, root), Read(&FCVirtualPlaylistItem::FromJson, root);
  try {
    root["ret"].asBool();
  } catch (const Json::Exception&) {
  }
  return 0;
}
