// Applications compile against the slot order of the exported interfaces:
// each operation must stay in its slot. Slots 0 and 1 are the destructors.
#include <gtest/gtest.h>

#include <string>

#include "ZundeProvider.h"
#include "vtable_slot.h"

namespace {

using zunde::testing::SlotList;

void ExpectConsecutiveSlotsFrom(std::ptrdiff_t first, const SlotList& slots) {
  for (size_t i = 0; i < slots.size(); ++i) {
    EXPECT_EQ(slots[i].second, first + static_cast<std::ptrdiff_t>(i)) << slots[i].first;
  }
}

using Text = std::string const&;
using Out = std::string&;

TEST(SlotOrder, FCRemoteContentAPI) {
  using C = FCRemoteContentAPI;
  ExpectConsecutiveSlotsFrom(
      2, {ZUNDE_SLOT(C, Reset), ZUNDE_SLOT(C, ToggleZundeTimeoutTest), ZUNDE_SLOT(C, SetRemoteContentEnv),
          ZUNDE_SLOT(C, SetRemoteContentEnvForEmp), ZUNDE_SLOT_OF(C, GetRemoteContentEnv, bool(Out, Out)),
          ZUNDE_SLOT_OF(C, GetRemoteContentEnv, bool(Out)),
          ZUNDE_SLOT_OF(C, GetRemoteContentActivityByTVSourceAndTVMode, bool(int, int, int, eRemoteContentActivity&)),
          ZUNDE_SLOT_OF(C, GetRemoteContentActivityByTVSourceAndTVMode, bool(Text, Out)),
          ZUNDE_SLOT_OF(C, SetRecommendTypeOption, bool(eRecommendTypeOption)),
          ZUNDE_SLOT_OF(C, SetRecommendTypeOption, bool(Text, Out)), ZUNDE_SLOT(C, GetRecommendTypeOption),
          ZUNDE_SLOT(C, SetPersonalUserID), ZUNDE_SLOT(C, GetPersonalUserID)});
}

TEST(SlotOrder, FIMatchFinder) {
  using C = FIMatchFinder;
  using Act = eRemoteContentActivity;
  ExpectConsecutiveSlotsFrom(
      2, {ZUNDE_SLOT_OF(C, GetFCRemoteChannelByTCServiceId, bool(Act, unsigned long long&, FCRemoteChannel&)),
          ZUNDE_SLOT_OF(C, GetFCRemoteChannelByTCServiceId, bool(Text, Out)),
          ZUNDE_SLOT_OF(C, GetTCServiceIdByFCRemoteChannel, bool(Act, FCRemoteChannel&, unsigned long long&)),
          ZUNDE_SLOT_OF(C, GetTCServiceIdByFCRemoteChannel, bool(Text, Out)),
          ZUNDE_SLOT_OF(C, GetTCServiceIdByProgramSourceID, bool(Act, std::string, unsigned long long&)),
          ZUNDE_SLOT_OF(C, GetTCServiceIdByProgramSourceID, bool(Text, Out))});
}

TEST(SlotOrder, FCRFNetworkChannelAPI) {
  using C = FCRFNetworkChannelAPI;
  ExpectConsecutiveSlotsFrom(
      2, {ZUNDE_SLOT(C, Reset), ZUNDE_SLOT(C, SetNavigationMode), ZUNDE_SLOT(C, GetNavigationMode),
          ZUNDE_SLOT(C, SetGenreForNavigation), ZUNDE_SLOT(C, GetGenreForNavigation),
          ZUNDE_SLOT(C, GetRFNetworkChannelMapByGenre), ZUNDE_SLOT(C, GetRFNetworkChannelUpByGenre),
          ZUNDE_SLOT(C, GetRFNetworkChannelDownByGenre), ZUNDE_SLOT(C, GetRFNetworkChannelCountByGenre),
          ZUNDE_SLOT(C, GetRFNetworkChannelCountByGenreList), ZUNDE_SLOT(C, GetPresentMetaProgram),
          ZUNDE_SLOT(C, GetNextMetaProgram), ZUNDE_SLOT(C, GetPrevMetaProgram), ZUNDE_SLOT(C, GetMetaProgramMap),
          ZUNDE_SLOT(C, CheckMetaProgramExist)});
}

TEST(SlotOrder, FCMBRNetworkChannelAPI) {
  using C = FCMBRNetworkChannelAPI;
  ExpectConsecutiveSlotsFrom(
      2, {ZUNDE_SLOT(C, Reset), ZUNDE_SLOT(C, AllocateActivityIDBySourceID), ZUNDE_SLOT(C, DeleteActivityID),
          ZUNDE_SLOT(C, SetActivityIDSourceID), ZUNDE_SLOT(C, GetActivityIDBySourceID), ZUNDE_SLOT(C, SetZipCode),
          ZUNDE_SLOT(C, GetZipCode), ZUNDE_SLOT(C, SetAdditionalInfo), ZUNDE_SLOT(C, GetAdditionalInfo),
          ZUNDE_SLOT(C, SetDeviceType), ZUNDE_SLOT(C, GetDeviceType), ZUNDE_SLOT(C, SetHeadEndID),
          ZUNDE_SLOT(C, GetHeadEndID), ZUNDE_SLOT(C, SetLocation), ZUNDE_SLOT(C, GetLocation),
          ZUNDE_SLOT(C, ConstructMBRNetworkChannelMap), ZUNDE_SLOT(C, ConstructMBRNetworkProgramMap),
          ZUNDE_SLOT(C, GetCurrentMBRNetworkProgram), ZUNDE_SLOT(C, GetCurrentMBRNetworkProgrambyCurrentTime),
          ZUNDE_SLOT(C, SetMBRNetworkChannelMap), ZUNDE_SLOT(C, GetMBRNetworkChannelMap),
          ZUNDE_SLOT(C, GetMBRNetworkChannelUp), ZUNDE_SLOT(C, GetMBRNetworkChannelDown),
          ZUNDE_SLOT(C, GetMBRNetworkChannelByMajorMinor), ZUNDE_SLOT(C, SaveMBRNetworkChannelMap),
          ZUNDE_SLOT(C, AddNewMBRNetworkChannel), ZUNDE_SLOT(C, SetRememberMBRNetworkChannel),
          ZUNDE_SLOT(C, ExistMBRNetworkChannelByMajorMinor), ZUNDE_SLOT(C, AddFavoriteMBRNetworkChannel),
          ZUNDE_SLOT(C, DeleteFavoriteMBRNetworkChannel), ZUNDE_SLOT(C, SetMBRNetworkProgramMap),
          ZUNDE_SLOT(C, GetMBRNetworkProgrmaMap), ZUNDE_SLOT(C, RemoveMBRNetworkChannel),
          ZUNDE_SLOT(C, GetMaxNumberOfMajorMinor), ZUNDE_SLOT(C, ExistChannelInActivityID),
          ZUNDE_SLOT(C, ClearMBRProgramMap), ZUNDE_SLOT(C, GetFeaturedMBRChannels),
          ZUNDE_SLOT(C, SetEditedMBRNetworkChannel), ZUNDE_SLOT(C, NotifyMBRChannelEditCompleted),
          ZUNDE_SLOT(C, GetMBRNetworkChannelByChannelIDOriginMajor), ZUNDE_SLOT(C, SetCurrentMBRNetworkChannel),
          ZUNDE_SLOT(C, GetCurrentMBRNetworkChannel), ZUNDE_SLOT(C, RegisterMBRNetworkChannelHistory)});
}

TEST(SlotOrder, FCVirtualChannelsAPI) {
  using C = FCVirtualChannelsAPI;
  using Id = FCVirtualProgramId const&;
  using Service = unsigned long long const&;
  ExpectConsecutiveSlotsFrom(
      2,
      {ZUNDE_SLOT_OF(C, GetProgramList,
                     bool(Service, unsigned int, unsigned int, std::map<unsigned int, FCVirtualProgramData>&)),
       ZUNDE_SLOT_OF(C, GetProgramList, bool(Text, Out)),
       ZUNDE_SLOT_OF(C, GetProgram, bool(EProgramIndicator, Id, FCVirtualProgramData&)),
       ZUNDE_SLOT_OF(C, GetProgram, bool(Id, FCVirtualProgramData&)), ZUNDE_SLOT_OF(C, GetProgram, bool(Text, Out)),
       ZUNDE_SLOT_OF(C, GetPresentProgram, bool(Service, FCVirtualProgramData&)),
       ZUNDE_SLOT_OF(C, GetPresentProgram, bool(Text, Out)),
       ZUNDE_SLOT_OF(C, GetChannelLogo, bool(Service, C::EChannelLogoSize, Out)),
       ZUNDE_SLOT_OF(C, GetChannelLogo, bool(Text, Out)), ZUNDE_SLOT_OF(C, GetProgramThumbnail, bool(Id, Out)),
       ZUNDE_SLOT_OF(C, GetProgramThumbnail, bool(Text, Out)),
       ZUNDE_SLOT_OF(C, GetProgramImage, long(Id, C::EProgramLogoType, Out)),
       ZUNDE_SLOT_OF(C, GetProgramImage, long(Text, Out)), ZUNDE_SLOT_OF(C, GetProgramBackground, bool(Id, Out)),
       ZUNDE_SLOT_OF(C, GetProgramBackground, bool(Text, Out)),
       ZUNDE_SLOT_OF(C, SetOnDemandProgram, bool(Service, FCVirtualProgramData const&, FCVirtualProgramId*)),
       ZUNDE_SLOT_OF(C, SetOnDemandProgram, bool(Text, Out)),
       ZUNDE_SLOT_OF(C, UnsetOnDemandProgram, bool(FCVirtualProgramId)),
       ZUNDE_SLOT_OF(C, UnsetOnDemandProgram, bool(Text, Out)),
       ZUNDE_SLOT_OF(C, GetOnDemandIdentifier, bool(Service, FCVirtualProgramId&)),
       ZUNDE_SLOT_OF(C, GetOnDemandIdentifier, bool(Text, Out)), ZUNDE_SLOT_OF(C, GetVCConfig, bool(FCVirtualConfig&)),
       ZUNDE_SLOT_OF(C, GetVCConfig, bool(Text, Out)),
       ZUNDE_SLOT_OF(C, GetFeaturedVirtualChannelInfo, bool(Service, FCVirtualChannelInfo&)),
       ZUNDE_SLOT_OF(C, GetFeaturedVirtualChannelInfo, bool(Text, Out)),
       ZUNDE_SLOT_OF(C, GetServiceIdFromOnTVProviderAndService, bool(Text, Text, unsigned long long&)),
       ZUNDE_SLOT_OF(C, GetServiceIdFromOnTVProviderAndService, bool(Text, Out)), ZUNDE_SLOT(C, SendLogKPI),
       ZUNDE_SLOT(C, GetViewingAgreement), ZUNDE_SLOT(C, Reset), ZUNDE_SLOT(C, KivoProgramInfoIsAvailable)});
}

TEST(SlotOrder, FCRemoteContent_MSOAPI) {
  using C = FCRemoteContent_MSOAPI;
  using Act = eRemoteContentActivity;
  using Raw = bool(Text, Out);
  ExpectConsecutiveSlotsFrom(
      2,
      {ZUNDE_SLOT_OF(C, GetRemoteContentConfig, bool(Act, FCRemoteMSOConfig&)),
       ZUNDE_SLOT_OF(C, GetRemoteContentConfig, Raw),
       ZUNDE_SLOT_OF(C, SetRemoteContentConfig, bool(Act, FCRemoteMSOConfig const&)),
       ZUNDE_SLOT_OF(C, SetRemoteContentConfig, Raw),
       ZUNDE_SLOT_OF(C, GetCertRule, bool(Act, CZundeResponse_CertRule&)), ZUNDE_SLOT_OF(C, GetCertRule, Raw),
       ZUNDE_SLOT_OF(C, GetFullChannelList, bool(Act, std::vector<FCRemoteChannel>&)),
       ZUNDE_SLOT_OF(C, GetFullChannelList, Raw),
       ZUNDE_SLOT_OF(C, GetTunableChannelList, bool(Act, std::vector<FCRemoteChannel>&)),
       ZUNDE_SLOT_OF(C, GetTunableChannelList, Raw), ZUNDE_SLOT(C, GetTunableProgramSourceIdMap),
       ZUNDE_SLOT_OF(C, GetProgramMap,
                     bool(Act, std::vector<std::string>&, int, int, FCFilterCriteria&,
                          std::map<std::string, std::vector<FCRemoteProgram> >&)),
       ZUNDE_SLOT_OF(C, GetProgramMap, Raw), ZUNDE_SLOT_OF(C, ActivateProgramGuide, bool(Act)),
       ZUNDE_SLOT_OF(C, ActivateProgramGuide, Raw), ZUNDE_SLOT_OF(C, DeactivateProgramGuide, bool(Act)),
       ZUNDE_SLOT_OF(C, DeactivateProgramGuide, Raw),
       ZUNDE_SLOT_OF(C, LoadAdditionalProgramMapFromServer, bool(Act, std::vector<std::string>&, unsigned long, int)),
       ZUNDE_SLOT_OF(C, LoadAdditionalProgramMapFromServer, Raw),
       ZUNDE_SLOT_OF(C, GetGenreList, bool(Act, std::vector<FCGenreInfo>&)), ZUNDE_SLOT_OF(C, GetGenreList, Raw),
       ZUNDE_SLOT_OF(C, GetRepGenreList, bool(Act, std::vector<FCRepGenreInfo>&)),
       ZUNDE_SLOT_OF(C, GetRepGenreList, Raw),
       ZUNDE_SLOT_OF(C, GetVODProviders, bool(Act, CZundeResponse_VODProviders&)),
       ZUNDE_SLOT_OF(C, GetVODProviders, Raw),
       ZUNDE_SLOT_OF(C, GetRecGroupMap, bool(Act, std::map<std::string, FCRecGroup>&)),
       ZUNDE_SLOT_OF(C, GetRecGroupMap, Raw), ZUNDE_SLOT(C, ActivateTimeline),
       ZUNDE_SLOT_OF(C, ActivateSmartPersonal, bool(Act, unsigned long)),
       ZUNDE_SLOT_OF(C, ActivateSmartPersonal, Raw),
       ZUNDE_SLOT_OF(C, GetRecommendationOnNow,
                     bool(Act, std::string, unsigned long, int, FCFilterCriteria&, std::list<FCSmartChannelGuide>&)),
       ZUNDE_SLOT_OF(C, GetRecommendationOnNow, Raw),
       ZUNDE_SLOT_OF(C, GetRecommendationUpcomming,
                     bool(Act, unsigned long, int, FCFilterCriteria&, std::list<FCSmartChannelGuide>&)),
       ZUNDE_SLOT_OF(C, GetRecommendationUpcomming, Raw), ZUNDE_SLOT(C, GetRecommendationTimeline),
       ZUNDE_SLOT(C, GetRecommendationFutureTimeline),
       ZUNDE_SLOT_OF(C, GetFCRemoteProgramByProgramSourceID, bool(Act, std::string, unsigned long, FCRemoteProgram&)),
       ZUNDE_SLOT_OF(C, GetFCRemoteProgramByProgramSourceID, Raw),
       ZUNDE_SLOT_OF(C, GetFCRemoteChannelByProgramSourceID, bool(Act, std::string, FCRemoteChannel&)),
       ZUNDE_SLOT_OF(C, GetFCRemoteChannelByProgramSourceID, Raw), ZUNDE_SLOT(C, GetSearchKeyStringInRFMode),
       ZUNDE_SLOT(C, GetSearchKeyStringInMBRMode), ZUNDE_SLOT(C, GetFeaturedChannels)});
}

TEST(SlotOrder, FCBrisvelObjectFactoryGettersComeBeforeItsDestructor) {
  using C = FCBrisvelObjectFactory;
  ExpectConsecutiveSlotsFrom(0, {ZUNDE_SLOT(C, GetRFNetworkChannelManager), ZUNDE_SLOT(C, GetMBRNetworkChannelManager),
                                 ZUNDE_SLOT(C, GetRemoteContentAPI), ZUNDE_SLOT(C, GetRemoteContentMSOAPI),
                                 ZUNDE_SLOT(C, GetMatchFinder), ZUNDE_SLOT(C, GetVirtualChannelsAPI)});
}

TEST(SlotOrder, FIIPCConnection) {
  using C = FIIPCConnection;
  ExpectConsecutiveSlotsFrom(
      2, {ZUNDE_SLOT(C, Connect), ZUNDE_SLOT(C, AddMatchRule), ZUNDE_SLOT(C, RemoveMatchRule), ZUNDE_SLOT(C, Call),
          ZUNDE_SLOT(C, SetEventCallbackFunction), ZUNDE_SLOT(C, UnSetEventCallbackFunction),
          ZUNDE_SLOT(C, SetDataCallbackFunction), ZUNDE_SLOT(C, GetConnectionId), ZUNDE_SLOT(C, SetGMainLoop)});
  EXPECT_EQ(zunde::testing::SlotOf(&FCIPCConnection::m_Connect), 11);
}

TEST(SlotOrder, ImplementationsAppendTheirOwnOperationsAfterTheInterface) {
  EXPECT_EQ(zunde::testing::SlotOf(&FCRemoteContentOnTV_Proxy::SetAToken), 15);
}

}  // namespace
