// Channels and programmes for the set-top-box record tests, compared by the
// compact text of their JSON forms (key names and number forms at once).
#ifndef ZUNDE_TESTS_MBR_SAMPLES_H
#define ZUNDE_TESTS_MBR_SAMPLES_H

#include <string>
#include <type_traits>

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
  std::string title = "Title " + id;
  program.SetProgramID(id);
  program.SetTitle(title);
  program.SetStartTime(start);
  program.SetDuration(duration);
  program.SetChannelID(70);
  return program;
}

// The record's JSON object as compact text, without the writer's newline.
template <typename Record>
std::string JsonOf(Record record) {
  Json::Value root;
  if constexpr (std::is_same_v<Record, FCMBRNetworkChannel>) {
    FCMarshal::MBRNetworkChannelToJson(record, root);
  } else {
    FCMarshal::MBRProgramToJson(record, root);
  }
  const std::string text = Compact(root);
  return text.substr(0, text.size() - 1);
}

}  // namespace mbrsamples

#endif
