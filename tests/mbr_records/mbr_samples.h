// Channels and programmes for the set-top-box record tests, and their JSON
// forms as compact text (key order and number forms included).
#ifndef ZUNDE_TESTS_MBR_SAMPLES_H
#define ZUNDE_TESTS_MBR_SAMPLES_H

#include <gtest/gtest.h>
#include <json/json.h>

#include <string>

#include "MBRNetworkChannel.h"
#include "json_text.h"

namespace mbrsamples {

inline FCMBRNetworkChannel Channel(int major, int minor, int channelId, std::string name = "") {
  FCMBRNetworkChannel channel;
  channel.SetMajor(major);
  channel.SetMinor(minor);
  channel.SetChannelID(channelId);
  channel.SetName(name);
  return channel;
}

// Every field away from its default, the shown major and name edited.
inline FCMBRNetworkChannel EditedChannel() {
  FCMBRNetworkChannel channel = Channel(17, 1, 70, "Movies+");
  std::string originName = "Movies", icon = "http://icon/7", index = "7a";
  channel.SetActivityID(2);
  channel.SetacRank(3);
  channel.SetIconUrl(icon);
  channel.SetUrlIndex(index);
  channel.SetOriginMajor(7);
  channel.SetOriginName(originName);
  channel.SetRemembered(true);
  channel.SetDigitalFlag(false);
  channel.SetFavorite(FCMBRNetworkChannel::eFavorite0, true);
  channel.SetFavorite(FCMBRNetworkChannel::eFavorite2, true);
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

using zunde::testing::Compact;
using zunde::testing::Parsed;

// The record's own JSON object, without the writer's closing newline so
// that it can be set inside a larger document.
inline std::string JsonOf(FCMBRNetworkChannel channel) {
  Json::Value root;
  EXPECT_TRUE(FCMBRNetworkChannel::MBRNetworkChannelToJson(channel, root));
  const std::string text = Compact(root);
  return text.substr(0, text.size() - 1);
}

inline std::string JsonOf(FCMBRNetworkProgram program) {
  Json::Value root;
  EXPECT_TRUE(FCMBRNetworkProgram::MBRNetworkProgramToJson(program, root));
  const std::string text = Compact(root);
  return text.substr(0, text.size() - 1);
}

// The form shows every field, also those that equality leaves out.
inline const char kDefaultChannelJson[] =
    "{\"bit set\":\"00000\",\"m_acRank\":0,\"m_activityID\":6,\"m_bDigital\":true,\"m_channelID\":-1,\"m_major\":-1,"
    "\"m_minor\":0,\"m_name\":\"\",\"m_originMajor\":-1,\"m_originName\":\"\",\"m_remembered\":false,"
    "\"m_str_icon_url\":\"\",\"m_str_url_index\":\"\"}";

inline const char kEditedChannelJson[] =
    "{\"bit set\":\"00101\",\"m_acRank\":3,\"m_activityID\":2,\"m_bDigital\":false,\"m_channelID\":70,\"m_major\":17,"
    "\"m_minor\":1,\"m_name\":\"Movies+\",\"m_originMajor\":7,\"m_originName\":\"Movies\",\"m_remembered\":true,"
    "\"m_str_icon_url\":\"http://icon/7\",\"m_str_url_index\":\"7a\"}";

}  // namespace mbrsamples

#endif
