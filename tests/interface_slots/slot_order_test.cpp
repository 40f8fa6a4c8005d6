// Applications compile against the slot order of the exported interfaces: each operation must keep
// its slot. The lists start after the two destructor slots. Most operations come as a typed form
// declared just before its pass-through overload bool(std::string const&, std::string&): P(name)
// checks the pass-through's slot and reserves the slot before it for the typed form, whose move or
// removal shifts a checked neighbour.
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include "ZundeProvider.h"

namespace {

// The slot a pointer to a virtual member function names. Under the Itanium C++ ABI it holds 1 + the
// byte offset of the slot; the ARM variant holds the offset and marks virtual members in the low
// bit of the adjustment.
template <typename Member>
std::ptrdiff_t SlotOf(Member member) {
  std::ptrdiff_t ptrAdj[2];  // the pointer, then the adjustment
  static_assert(sizeof(member) == sizeof(ptrAdj), "not an Itanium-style member pointer");
  std::memcpy(ptrAdj, &member, sizeof ptrAdj);
#if defined(__arm__) || defined(__aarch64__)
  return (ptrAdj[1] & 1) ? ptrAdj[0] / static_cast<std::ptrdiff_t>(sizeof(void*)) : -1;
#else
  return (ptrAdj[0] & 1) ? (ptrAdj[0] - 1) / static_cast<std::ptrdiff_t>(sizeof(void*)) : -1;
#endif
}

using Text = std::string const&;
using Out = std::string&;
template <typename Class, typename Function>
using MemberOf = Function Class::*;
constexpr std::ptrdiff_t kTyped = -2;

// Each operation's slot, counted from `first`; a typed form's slot is only reserved.
void ExpectSlotsFrom(std::ptrdiff_t first, const std::vector<std::pair<const char*, std::ptrdiff_t>>& slots) {
  for (size_t i = 0; i < slots.size(); ++i)
    EXPECT_EQ(slots[i].second, slots[i].second == kTyped ? kTyped : first + std::ptrdiff_t(i)) << slots[i].first;
}

#define S(name) {#name, SlotOf(&C::name)}
#define O(name, ...) {#name " " #__VA_ARGS__, SlotOf(static_cast<MemberOf<C, __VA_ARGS__>>(&C::name))}
#define P(name) {"typed " #name, kTyped}, O(name, bool(Text, Out))
// One row per class: its operations in slot order from `first`.
#define SLOTS(Class, first, ...) \
  TEST(SlotOrder, Class) {       \
    using C = Class;             \
    ExpectSlotsFrom(first, {__VA_ARGS__}); \
  }

SLOTS(FCRemoteContentAPI, 2, S(Reset), S(ToggleZundeTimeoutTest), S(SetRemoteContentEnv), S(SetRemoteContentEnvForEmp),
      O(GetRemoteContentEnv, bool(Out, Out)), O(GetRemoteContentEnv, bool(Out)),
      P(GetRemoteContentActivityByTVSourceAndTVMode), P(SetRecommendTypeOption), S(GetRecommendTypeOption),
      S(SetPersonalUserID), S(GetPersonalUserID))
SLOTS(FIMatchFinder, 2, P(GetFCRemoteChannelByTCServiceId), P(GetTCServiceIdByFCRemoteChannel),
      P(GetTCServiceIdByProgramSourceID))
SLOTS(FCRFNetworkChannelAPI, 2, S(Reset), S(SetNavigationMode), S(GetNavigationMode), S(SetGenreForNavigation),
      S(GetGenreForNavigation), S(GetRFNetworkChannelMapByGenre), S(GetRFNetworkChannelUpByGenre),
      S(GetRFNetworkChannelDownByGenre), S(GetRFNetworkChannelCountByGenre), S(GetRFNetworkChannelCountByGenreList),
      S(GetPresentMetaProgram), S(GetNextMetaProgram), S(GetPrevMetaProgram), S(GetMetaProgramMap),
      S(CheckMetaProgramExist))
SLOTS(FCMBRNetworkChannelAPI, 2, S(Reset), S(AllocateActivityIDBySourceID), S(DeleteActivityID),
      S(SetActivityIDSourceID), S(GetActivityIDBySourceID), S(SetZipCode), S(GetZipCode), S(SetAdditionalInfo),
      S(GetAdditionalInfo), S(SetDeviceType), S(GetDeviceType), S(SetHeadEndID), S(GetHeadEndID), S(SetLocation),
      S(GetLocation), S(ConstructMBRNetworkChannelMap), S(ConstructMBRNetworkProgramMap),
      S(GetCurrentMBRNetworkProgram), S(GetCurrentMBRNetworkProgrambyCurrentTime), S(SetMBRNetworkChannelMap),
      S(GetMBRNetworkChannelMap), S(GetMBRNetworkChannelUp), S(GetMBRNetworkChannelDown),
      S(GetMBRNetworkChannelByMajorMinor), S(SaveMBRNetworkChannelMap), S(AddNewMBRNetworkChannel),
      S(SetRememberMBRNetworkChannel), S(ExistMBRNetworkChannelByMajorMinor), S(AddFavoriteMBRNetworkChannel),
      S(DeleteFavoriteMBRNetworkChannel), S(SetMBRNetworkProgramMap), S(GetMBRNetworkProgrmaMap),
      S(RemoveMBRNetworkChannel), S(GetMaxNumberOfMajorMinor), S(ExistChannelInActivityID), S(ClearMBRProgramMap),
      S(GetFeaturedMBRChannels), S(SetEditedMBRNetworkChannel), S(NotifyMBRChannelEditCompleted),
      S(GetMBRNetworkChannelByChannelIDOriginMajor), S(SetCurrentMBRNetworkChannel), S(GetCurrentMBRNetworkChannel),
      S(RegisterMBRNetworkChannelHistory))
SLOTS(FCVirtualChannelsAPI, 2, P(GetProgramList),
      O(GetProgram, bool(EProgramIndicator, FCVirtualProgramId const&, FCVirtualProgramData&)), P(GetProgram),
      P(GetPresentProgram), P(GetChannelLogo), P(GetProgramThumbnail), {"typed GetProgramImage", kTyped},
      O(GetProgramImage, long(Text, Out)), P(GetProgramBackground), P(SetOnDemandProgram), P(UnsetOnDemandProgram),
      P(GetOnDemandIdentifier), P(GetVCConfig), P(GetFeaturedVirtualChannelInfo),
      P(GetServiceIdFromOnTVProviderAndService), S(SendLogKPI), S(GetViewingAgreement), S(Reset),
      S(KivoProgramInfoIsAvailable))
SLOTS(FCRemoteContent_MSOAPI, 2, P(GetRemoteContentConfig), P(SetRemoteContentConfig), P(GetCertRule),
      P(GetFullChannelList), P(GetTunableChannelList), S(GetTunableProgramSourceIdMap), P(GetProgramMap),
      P(ActivateProgramGuide), P(DeactivateProgramGuide), P(LoadAdditionalProgramMapFromServer), P(GetGenreList),
      P(GetRepGenreList), P(GetVODProviders), P(GetRecGroupMap), S(ActivateTimeline), P(ActivateSmartPersonal),
      P(GetRecommendationOnNow), P(GetRecommendationUpcomming), S(GetRecommendationTimeline),
      S(GetRecommendationFutureTimeline), P(GetFCRemoteProgramByProgramSourceID),
      P(GetFCRemoteChannelByProgramSourceID), S(GetSearchKeyStringInRFMode), S(GetSearchKeyStringInMBRMode),
      S(GetFeaturedChannels))
SLOTS(FIIPCConnection, 2, S(Connect), S(AddMatchRule), S(RemoveMatchRule), S(Call), S(SetEventCallbackFunction),
      S(UnSetEventCallbackFunction), S(SetDataCallbackFunction), S(GetConnectionId), S(SetGMainLoop))
// The factory's getters come before its destructor.
SLOTS(FCBrisvelObjectFactory, 0, S(GetRFNetworkChannelManager), S(GetMBRNetworkChannelManager),
      S(GetRemoteContentAPI), S(GetRemoteContentMSOAPI), S(GetMatchFinder), S(GetVirtualChannelsAPI))

// Implementations add their own operations after the interface's.
TEST(SlotOrder, ImplementationsAddAfterTheInterface) {
  EXPECT_EQ(SlotOf(&FCIPCConnection::m_Connect), 11);
  EXPECT_EQ(SlotOf(&FCRemoteContentOnTV_Proxy::SetAToken), 15);
}

}  // namespace
