// The set-top-box records and tables on the wire.
#include "FCMarshal.h"

#include "RecordJson_internal.h"

namespace recordjson = zunde::recordjson;
using Lenient = recordjson::Lenient;

namespace {

const char kChannelTableKey[] = "MBR channel table";
const char kProgramTableKey[] = "mbrProgramTable";
// The start time a programme is stored under, beside its own keys.
const char kProgramTableStartKey[] = "first";

}  // namespace

bool FCMarshal::MBRNetworkChannelToJson(FCMBRNetworkChannel& channel, Json::Value& root) {
  return FCMBRNetworkChannel::MBRNetworkChannelToJson(channel, root);
}

bool FCMarshal::JsonToMBRNetworkChannel(Json::Value& root, FCMBRNetworkChannel& channel) {
  return FCMBRNetworkChannel::JsonToMBRNetworkChannel(root, channel);
}

bool FCMarshal::MBRProgramToJson(FCMBRNetworkProgram& program, Json::Value& root) {
  return FCMBRNetworkProgram::MBRNetworkProgramToJson(program, root);
}

bool FCMarshal::JsonToMBRProgram(Json::Value& root, FCMBRNetworkProgram& program) {
  return FCMBRNetworkProgram::JsonToMBRNetworkProgram(root, program);
}

bool FCMarshal::MBRNetworkChannelTableToJson(FCMBRNetworkChannelTable& table, Json::Value& root) {
  recordjson::WriteArrayMember(root, kChannelTableKey, table.m_mbrNetworkChannelDB,
                                   [](FCMBRNetworkChannel& channel, Json::Value& element) {
                                     FCMBRNetworkChannel::MBRNetworkChannelToJson(channel, element);
                                   });
  return true;
}

bool FCMarshal::JsonToMBRNetworkChannelTable(Json::Value& root, FCMBRNetworkChannelTable& table) {
  recordjson::ReadArrayMember<Lenient>(root, kChannelTableKey, [&](Json::Value& element) {
    FCMBRNetworkChannel channel;
    FCMBRNetworkChannel::JsonToMBRNetworkChannel(element, channel);
    table.AppendNetworkChannel(channel);
  });
  return true;
}

bool FCMarshal::MBRProgramTableToJson(FCMBRNetworkProgramTable& table, Json::Value& root) {
  recordjson::WriteArrayMember(root, kProgramTableKey, table.m_mbrNetworkProgramDB,
                                   [](std::pair<const unsigned long, FCMBRNetworkProgram>& entry, Json::Value& element) {
                                     FCMBRNetworkProgram::MBRNetworkProgramToJson(entry.second, element);
                                     Lenient::Write(element, kProgramTableStartKey, entry.first);
                                   });
  return true;
}

bool FCMarshal::JsonToMBRProgramTable(Json::Value& root, FCMBRNetworkProgramTable& table) {
  recordjson::ReadArrayMember<Lenient>(root, kProgramTableKey, [&](Json::Value& element) {
    FCMBRNetworkProgram program;
    FCMBRNetworkProgram::JsonToMBRNetworkProgram(element, program);
    // Unlike AppendNetworkProgram, the document's later entry wins.
    table.m_mbrNetworkProgramDB[recordjson::Read<Lenient, unsigned long>(element, kProgramTableStartKey)] = program;
  });
  return true;
}
