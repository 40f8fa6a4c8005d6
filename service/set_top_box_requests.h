// What the set-top-box handlers read from a request and how they answer
// with channels, shared by its activity, channel-map and programme-map
// members.
#ifndef ZUNDE_SERVICE_SET_TOP_BOX_REQUESTS_H
#define ZUNDE_SERVICE_SET_TOP_BOX_REQUESTS_H

#include "handler_helpers.h"
#include "set_top_box_state.h"

namespace zunde::service {

// The channel the request describes with the record's own keys.
FCMBRNetworkChannel ChannelOf(Request& request);

void ReplyChannel(FCMBRNetworkChannel channel, Json::Value& reply);
void ReplyChannels(const ChannelList& channels, Json::Value& reply);

inline const RequiredKey kActivityKey{"activityID", JsonType::Int};

}  // namespace zunde::service

#endif
