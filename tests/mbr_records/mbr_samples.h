// Channels and programmes for the set-top-box record tests; channels are
// compared by the compact text of their JSON form.
#ifndef ZUNDE_TESTS_MBR_SAMPLES_H
#define ZUNDE_TESTS_MBR_SAMPLES_H

#include <string>

#include "FCMarshal.h"
#include "MBRNetworkChannelTable.h"
#include "json_text.h"

namespace mbrsamples {

using zunde::testing::Compact;
using zunde::testing::Parsed;

inline FCMBRNetworkChannel Channel(int major, int minor, int channelId, std::string name = "") {
  FCMBRNetworkChannel channel;
  channel.SetMajor(major);
  channel.SetMinor(minor);
  channel.SetChannelID(channelId);
  channel.SetName(name);
  return channel;
}

inline FCMBRNetworkProgram Program(std::string id, unsigned long start, int duration = 1800) {
  FCMBRNetworkProgram program;
  program.SetProgramID(id);
  program.SetStartTime(start);
  program.SetDuration(duration);
  return program;
}

// The channel's JSON object as compact text, without the writer's newline.
inline std::string JsonOf(FCMBRNetworkChannel channel) {
  Json::Value root;
  FCMarshal::MBRNetworkChannelToJson(channel, root);
  const std::string text = Compact(root);
  return text.substr(0, text.size() - 1);
}

}  // namespace mbrsamples

#endif
