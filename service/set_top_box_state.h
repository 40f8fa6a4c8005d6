// What the service keeps per set-top-box activity (0 to 4): its settings
// and, apart from them, its channel map, so that a change of one setting
// writes a few bytes whatever the map's size; and the programme maps per
// channel id. Documents are kept in the wire's own vocabulary, written and
// read with the library's FCMarshal functions.
#ifndef ZUNDE_SERVICE_SET_TOP_BOX_STATE_H
#define ZUNDE_SERVICE_SET_TOP_BOX_STATE_H

#include <list>
#include <string>

#include "MBRNetworkChannelTable.h"
#include "store.h"

namespace zunde::service {

using ChannelList = std::list<FCMBRNetworkChannel>;

struct SetTopBoxSettings {
  int source = -1;  // -1: the activity is free
  std::string zipCode;
  std::string headEndId;
  std::string deviceType;
  std::string location;
};

inline constexpr int kActivityCount = 5;

SetTopBoxSettings LoadSettings(const Store& store, int activity);
void SaveSettings(Store& store, int activity, const SetTopBoxSettings& settings);

// The map in channel order.
ChannelList LoadChannels(const Store& store, int activity);
// Puts `channels` in channel order and keeps them.
void SaveChannels(Store& store, int activity, ChannelList& channels);

// Frees the activity: its settings and its map go.
void EraseSetTopBox(Store& store, int activity);

// The activity bound to `source`; -1 when none is.
int ActivityOfSource(const Store& store, int source);

FCMBRNetworkProgramTable LoadPrograms(const Store& store, const std::string& channelId);
// Keeps the maps of the last `keep` channel ids set; older ones go.
void SavePrograms(Store& store, const std::string& channelId, FCMBRNetworkProgramTable& programs, int keep);
void ClearPrograms(Store& store);

}  // namespace zunde::service

#endif
