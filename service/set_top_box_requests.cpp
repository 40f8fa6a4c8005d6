#include "set_top_box_requests.h"

#include "FCMarshal.h"

namespace zunde::service {

FCMBRNetworkChannel ChannelOf(Request& request) {
  FCMBRNetworkChannel channel;
  FCMarshal::JsonToMBRNetworkChannel(request.body, channel);
  return channel;
}

void ReplyChannel(FCMBRNetworkChannel channel, Json::Value& reply) {
  FCMarshal::MBRNetworkChannelToJson(channel, reply);
  Succeed(reply);
}

void ReplyChannels(const ChannelList& channels, Json::Value& reply) {
  FCMBRNetworkChannelTable table;
  for (const FCMBRNetworkChannel& channel : channels) table.AppendNetworkChannel(channel);
  FCMarshal::MBRNetworkChannelTableToJson(table, reply);
  Succeed(reply);
}

}  // namespace zunde::service
