// The channels of external set-top boxes that the TV drives through its
// multi-brand remote (MBR).
//
// Each set-top box is bound to an activity slot (0 to 4) and a TV input
// source; for each activity the service keeps a channel map, favourites,
// remembered channels, user edits, a programme guide and settings such as
// zip code, head-end id, device type and location. Obtained from
// FCAPI::GetMBRNetworkChannelAPI(); every operation is one blocking call to
// the service, and an activity above 4 is refused without a call.
#ifndef ZUNDE_FCMBRNETWORKCHANNELAPI_H
#define ZUNDE_FCMBRNETWORKCHANNELAPI_H

#include <string>

#include "FCRemoteContentTypes.h"
#include "MBRNetworkChannel.h"

class FCMBRNetworkProgram;
class FCMBRNetworkChannelTable;
class FCMBRNetworkProgramTable;

// Told of the channels an application watched; named here only.
class FIMBRNetworkChannelHistory;

class FCMBRNetworkChannelAPI {
 public:
  // The set-top box activity slot: 0 to 4; 6 marks a channel with no activity.
  enum EActivityID : int {};
  // Which channels a map query covers; the service defines the values.
  enum EMBRNetworkChannelQuery : int {};

  virtual ~FCMBRNetworkChannelAPI() {}

  virtual bool Reset() = 0;
  virtual bool AllocateActivityIDBySourceID(int source, EActivityID& activity) = 0;
  virtual bool DeleteActivityID(EActivityID activity) = 0;
  virtual bool SetActivityIDSourceID(EActivityID activity, ESource source) = 0;
  virtual bool GetActivityIDBySourceID(int source, EActivityID& activity) = 0;
  virtual bool SetZipCode(EActivityID activity, std::string& zipCode) = 0;
  virtual bool GetZipCode(EActivityID activity, std::string& zipCode) = 0;
  virtual bool SetAdditionalInfo(EActivityID activity, std::string& info) = 0;
  virtual bool GetAdditionalInfo(EActivityID activity, std::string& info) = 0;
  virtual bool SetDeviceType(EActivityID activity, std::string& deviceType) = 0;
  virtual bool GetDeviceType(EActivityID activity, std::string& deviceType) = 0;
  virtual bool SetHeadEndID(EActivityID activity, std::string& headEndId) = 0;
  virtual bool GetHeadEndID(EActivityID activity, std::string& headEndId) = 0;
  virtual bool SetLocation(EActivityID activity, std::string& location) = 0;
  virtual bool GetLocation(EActivityID activity, std::string& location) = 0;
  virtual bool ConstructMBRNetworkChannelMap(EActivityID activity) = 0;
  virtual bool ConstructMBRNetworkProgramMap(EActivityID activity) = 0;
  virtual bool GetCurrentMBRNetworkProgram(EActivityID activity, FCMBRNetworkChannel& channel,
                                           FCMBRNetworkProgram& program) = 0;
  virtual bool GetCurrentMBRNetworkProgrambyCurrentTime(EActivityID activity, unsigned long time,
                                                        FCMBRNetworkChannel& channel, FCMBRNetworkProgram& program) = 0;
  virtual bool SetMBRNetworkChannelMap(EActivityID activity, FCMBRNetworkChannelTable& table) = 0;
  virtual bool GetMBRNetworkChannelMap(EActivityID activity, FCMBRNetworkChannelTable& table,
                                       FCMBRNetworkChannelAPI::EMBRNetworkChannelQuery query) = 0;
  virtual bool GetMBRNetworkChannelUp(EActivityID activity, FCMBRNetworkChannel& current,
                                      FCMBRNetworkChannel& next) = 0;
  virtual bool GetMBRNetworkChannelDown(EActivityID activity, FCMBRNetworkChannel& current,
                                        FCMBRNetworkChannel& next) = 0;
  virtual bool GetMBRNetworkChannelByMajorMinor(EActivityID activity, int major, int minor,
                                                FCMBRNetworkChannel& channel) = 0;
  virtual bool SaveMBRNetworkChannelMap(EActivityID activity) = 0;
  virtual bool AddNewMBRNetworkChannel(EActivityID activity, FCMBRNetworkChannel& channel) = 0;
  virtual bool SetRememberMBRNetworkChannel(EActivityID activity, FCMBRNetworkChannel& channel, bool remember) = 0;
  virtual bool ExistMBRNetworkChannelByMajorMinor(EActivityID activity, int major, int minor) = 0;
  virtual bool AddFavoriteMBRNetworkChannel(EActivityID activity, FCMBRNetworkChannel::EFavorite favorite,
                                            FCMBRNetworkChannel& channel) = 0;
  virtual bool DeleteFavoriteMBRNetworkChannel(EActivityID activity, FCMBRNetworkChannel::EFavorite favorite,
                                               FCMBRNetworkChannel& channel) = 0;
  virtual bool SetMBRNetworkProgramMap(FCMBRNetworkProgramTable& table, std::string channelId) = 0;
  // The transposed letters are the published name.
  virtual bool GetMBRNetworkProgrmaMap(FCMBRNetworkProgramTable& table, std::string channelId) = 0;
  virtual bool RemoveMBRNetworkChannel(EActivityID activity, FCMBRNetworkChannel& channel) = 0;
  virtual bool GetMaxNumberOfMajorMinor(EActivityID activity, int& major, int& minor) = 0;
  virtual bool ExistChannelInActivityID(EActivityID activity, FCMBRNetworkChannelAPI::EMBRNetworkChannelQuery query) = 0;
  virtual void ClearMBRProgramMap() = 0;
  virtual bool GetFeaturedMBRChannels(EActivityID activity, FCMBRNetworkChannelTable& table) = 0;
  virtual bool SetEditedMBRNetworkChannel(EActivityID activity, FCMBRNetworkChannel& channel) = 0;
  virtual bool NotifyMBRChannelEditCompleted(EActivityID activity) = 0;
  virtual bool GetMBRNetworkChannelByChannelIDOriginMajor(EActivityID activity, std::string const& channelId,
                                                          std::string const& originMajor,
                                                          FCMBRNetworkChannel& channel) = 0;

  // Not offered by this library's implementation: they do nothing and return false.
  virtual bool SetCurrentMBRNetworkChannel(EActivityID activity, FCMBRNetworkChannel& channel);
  virtual bool GetCurrentMBRNetworkChannel(EActivityID activity, FCMBRNetworkChannel& channel);
  virtual bool RegisterMBRNetworkChannelHistory(FIMBRNetworkChannelHistory* history);
};

#endif
