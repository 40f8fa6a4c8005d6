// What the service keeps per set-top-box activity (0 to 4), and the
// programme maps per channel id. Documents are kept in the wire's own
// vocabulary, written and read with the library's FCMarshal functions.
#ifndef ZUNDE_SERVICE_SET_TOP_BOX_STATE_H
#define ZUNDE_SERVICE_SET_TOP_BOX_STATE_H

#include <list>
#include <string>

#include "MBRNetworkChannelTable.h"
#include "store.h"

namespace zunde::service {

using ChannelList = std::list<FCMBRNetworkChannel>;

struct SetTopBox {
  int source = -1;  // -1: the activity is free
  std::string zipCode;
  std::string headEndId;
  std::string deviceType;
  std::string location;
  ChannelList channels;  // kept in channel order
};

inline constexpr int kActivityCount = 5;

SetTopBox LoadSetTopBox(const Store& store, int activity);
void SaveSetTopBox(Store& store, int activity, SetTopBox& box);
void EraseSetTopBox(Store& store, int activity);

// The activity bound to `source`; -1 when none is.
int ActivityOfSource(const Store& store, int source);

FCMBRNetworkProgramTable LoadPrograms(const Store& store, const std::string& channelId);
// Keeps the maps of the last `keep` channel ids set; older ones go.
void SavePrograms(Store& store, const std::string& channelId, FCMBRNetworkProgramTable& programs, int keep);
void ClearPrograms(Store& store);

}  // namespace zunde::service

#endif
