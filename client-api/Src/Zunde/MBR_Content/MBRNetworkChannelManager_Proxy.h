// The set-top-box channel manager, reached through the service.
//
// Every operation is one blocking call to the service. An activity that,
// read as unsigned, is above 4 is refused with false and no call, except by
// the operations marked unchecked, which pass it on. The interface's three
// current-channel and history operations keep their defaults (false).
#ifndef ZUNDE_MBRNETWORKCHANNELMANAGER_PROXY_H
#define ZUNDE_MBRNETWORKCHANNELMANAGER_PROXY_H

#include <string>

#include "FCMBRNetworkChannelAPI.h"
#include "MBRNetworkChannelTable.h"

class FCMBRNetworkChannelManager_Proxy : public FCMBRNetworkChannelAPI {
 public:
  // Only writes its entry line: the proxy keeps nothing to reset.
  bool Reset() override;
  // A source of -1 is refused; the service answers with the activity.
  bool AllocateActivityIDBySourceID(int source, EActivityID& activity) override;
  bool DeleteActivityID(EActivityID activity) override;
  bool SetActivityIDSourceID(EActivityID activity, ESource source) override;
  // Unchecked: a source of -1 is asked about too.
  bool GetActivityIDBySourceID(int source, EActivityID& activity) override;
  bool SetZipCode(EActivityID activity, std::string& zipCode) override;
  bool GetZipCode(EActivityID activity, std::string& zipCode) override;
  // Not offered: false at once.
  bool SetAdditionalInfo(EActivityID activity, std::string& info) override;
  bool GetAdditionalInfo(EActivityID activity, std::string& info) override;
  bool SetDeviceType(EActivityID activity, std::string& deviceType) override;
  bool GetDeviceType(EActivityID activity, std::string& deviceType) override;
  bool SetHeadEndID(EActivityID activity, std::string& headEndId) override;
  bool GetHeadEndID(EActivityID activity, std::string& headEndId) override;
  bool SetLocation(EActivityID activity, std::string& location) override;
  bool GetLocation(EActivityID activity, std::string& location) override;
  // Unchecked: the service judges the activity.
  bool ConstructMBRNetworkChannelMap(EActivityID activity) override;
  bool ConstructMBRNetworkProgramMap(EActivityID activity) override;
  // The programme on `channel` now, or at `time`; `channel` is only read.
  // Both unchecked.
  bool GetCurrentMBRNetworkProgram(EActivityID activity, FCMBRNetworkChannel& channel,
                                   FCMBRNetworkProgram& program) override;
  bool GetCurrentMBRNetworkProgrambyCurrentTime(EActivityID activity, unsigned long time, FCMBRNetworkChannel& channel,
                                                FCMBRNetworkProgram& program) override;
  bool SetMBRNetworkChannelMap(EActivityID activity, FCMBRNetworkChannelTable& table) override;
  // Appends the service's channels to `table`.
  bool GetMBRNetworkChannelMap(EActivityID activity, FCMBRNetworkChannelTable& table,
                               FCMBRNetworkChannelAPI::EMBRNetworkChannelQuery query) override;
  bool GetMBRNetworkChannelUp(EActivityID activity, FCMBRNetworkChannel& current, FCMBRNetworkChannel& next) override;
  bool GetMBRNetworkChannelDown(EActivityID activity, FCMBRNetworkChannel& current, FCMBRNetworkChannel& next) override;
  bool GetMBRNetworkChannelByMajorMinor(EActivityID activity, int major, int minor,
                                        FCMBRNetworkChannel& channel) override;
  bool SaveMBRNetworkChannelMap(EActivityID activity) override;
  bool AddNewMBRNetworkChannel(EActivityID activity, FCMBRNetworkChannel& channel) override;
  bool SetRememberMBRNetworkChannel(EActivityID activity, FCMBRNetworkChannel& channel, bool remember) override;
  // The service's answer is the result.
  bool ExistMBRNetworkChannelByMajorMinor(EActivityID activity, int major, int minor) override;
  // The favourite list is passed on as it stands.
  bool AddFavoriteMBRNetworkChannel(EActivityID activity, FCMBRNetworkChannel::EFavorite favorite,
                                    FCMBRNetworkChannel& channel) override;
  bool DeleteFavoriteMBRNetworkChannel(EActivityID activity, FCMBRNetworkChannel::EFavorite favorite,
                                       FCMBRNetworkChannel& channel) override;
  // The programme guide of one channel; unchecked.
  bool SetMBRNetworkProgramMap(FCMBRNetworkProgramTable& table, std::string channelId) override;
  // Stores the service's programmes in `table` by start time.
  bool GetMBRNetworkProgrmaMap(FCMBRNetworkProgramTable& table, std::string channelId) override;
  bool RemoveMBRNetworkChannel(EActivityID activity, FCMBRNetworkChannel& channel) override;
  bool GetMaxNumberOfMajorMinor(EActivityID activity, int& major, int& minor) override;
  // The service's answer is the result.
  bool ExistChannelInActivityID(EActivityID activity, FCMBRNetworkChannelAPI::EMBRNetworkChannelQuery query) override;
  // Sends an empty request and does not look at the answer.
  void ClearMBRProgramMap() override;
  // Appends the service's featured channels to `table`.
  bool GetFeaturedMBRChannels(EActivityID activity, FCMBRNetworkChannelTable& table) override;
  bool SetEditedMBRNetworkChannel(EActivityID activity, FCMBRNetworkChannel& channel) override;
  bool NotifyMBRChannelEditCompleted(EActivityID activity) override;
  bool GetMBRNetworkChannelByChannelIDOriginMajor(EActivityID activity, std::string const& channelId,
                                                  std::string const& originMajor,
                                                  FCMBRNetworkChannel& channel) override;

  // The zip code as a number: not offered, false at once.
  virtual bool SetZipCode(EActivityID activity, int zipCode);
  virtual bool GetZipCode(EActivityID activity, int& zipCode);
  // The current time, in seconds since the epoch.
  virtual unsigned long t_EpochTime();
};

#endif
