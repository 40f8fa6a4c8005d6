#include "FCRemoteCall_internal.h"

#include "FCIPCConnection.h"
#include "FCIPCNames_internal.h"
#include "FCMarshal.h"
#include "FCMessageBuffer.h"
#include "FCSlowCall_internal.h"

namespace zunde {
namespace {

// The reply's bytes from the read cursor on (the whole reply, as nothing
// has been popped); an empty reply is an empty range.
std::pair<const char*, const char*> ReplyBytes(FCMessageBuffer& reply) {
  static const char kEmpty[] = "";
  const char* bytes = reply.GetAsCStr(0);
  if (bytes == nullptr) return {kEmpty, kEmpty};
  return {bytes, bytes + (reply.GetFullBufferSize() - reply.GetReadOffset())};
}

std::string ReplyText(FCMessageBuffer& reply) {
  const auto bytes = ReplyBytes(reply);
  return std::string(bytes.first, bytes.second);
}

}  // namespace

bool TransmitBuffer(const CallLogLines& lines, const LogSite& site, const char* subject, const char* member,
                    const std::string& request, FCMessageBuffer& reply) {
  FIIPCConnection* connection = FIIPCConnection::GetInstance();
  FCMessageBuffer requestBuffer;
  requestBuffer.PushConcatenated(request.length(), const_cast<char*>(request.data()));
  const SlowCallWatch watch(member);
  if (connection->Call(std::string(bus::kCallListener), member, requestBuffer, reply) == -1) {
    WriteLogLine(lines.sendFailed, site, subject);
    return false;
  }
  return true;
}

bool TransmitText(const CallLogLines& lines, const LogSite& site, const char* subject, const char* member,
                  const std::string& request, std::string& reply) {
  FCMessageBuffer replyBuffer;
  if (!TransmitBuffer(lines, site, subject, member, request, replyBuffer)) return false;
  reply = ReplyText(replyBuffer);
  return true;
}

RemoteCall::RemoteCall(const CallLogLines& lines, const char* member, LogSite site)
    : lines_(lines), member_(member), site_(site) {}

RemoteCall& RemoteCall::Entry() { return Entry(lines_.called); }

RemoteCall& RemoteCall::Entry(const LogLine& line) {
  if (!rejected_) WriteLogLine(line, site_);
  return *this;
}

RemoteCall& RemoteCall::Require(bool check) {
  rejected_ = rejected_ || !check;
  return *this;
}

RemoteCall& RemoteCall::ConnectFirst() {
  if (!rejected_) FIIPCConnection::GetInstance()->Connect();
  return *this;
}

RemoteCall& RemoteCall::Through(JsonTransport transport) {
  transport_ = std::move(transport);
  return *this;
}

std::string RemoteCall::WriteRequest() const {
  if (writers_.empty()) return std::string();
  Json::Value root;
  for (const auto& write : writers_) write(root);
  return Json::StyledWriter().write(root);
}

bool RemoteCall::Transmit(const std::string& request, FCMessageBuffer& reply) {
  return TransmitBuffer(lines_, site_, nullptr, member_, request, reply);
}

bool RemoteCall::Parse(FCMessageBuffer& replyBuffer, Json::Value& root) {
  // The reply is parsed where it lies: a copy into a string first would be
  // one more pass over a reply that may hold megabytes.
  const auto bytes = ReplyBytes(replyBuffer);
  if (ParseJsonText(bytes.first, bytes.second, root)) return true;
  WriteLogLine(lines_.parseFailed, site_);
  return false;
}

bool RemoteCall::Exchange(Json::Value& reply) {
  if (rejected_) return false;
  if (transport_) {
    Json::Value request;
    for (const auto& write : writers_) write(request);
    return transport_(member_, request, reply);
  }
  FCMessageBuffer replyBuffer;
  return Transmit(WriteRequest(), replyBuffer) && Parse(replyBuffer, reply);
}

void RemoteCall::ReadOutputs(Json::Value& reply) {
  for (const auto& read : readers_) read(reply);
}

bool RemoteCall::Run() {
  Json::Value reply;
  if (!Exchange(reply)) return false;
  const bool result = reply["ret"].asBool();
  ReadOutputs(reply);
  return result;
}

bool RemoteCall::RunIgnoringRet() {
  Json::Value reply;
  if (!Exchange(reply)) return false;
  ReadOutputs(reply);
  return true;
}

bool RemoteCall::Send() {
  if (rejected_) return false;
  FCMessageBuffer replyBuffer;
  return Transmit(WriteRequest(), replyBuffer);
}

bool RemoteCall::PassThrough(const std::string& request, std::string& reply) {
  if (rejected_) return false;
  return TransmitText(lines_, site_, nullptr, member_, request, reply);
}

bool CallWithStringArguments(const CallLogLines& lines, const char* member, const std::string& request,
                             std::string& reply, LogSite site) {
  WriteLogLine(lines.called, site, member);
  return TransmitText(lines, site, member, member, request, reply);
}

bool CallWithJsonArguments(const CallLogLines& lines, const char* member, const Json::Value& request,
                           Json::Value& reply, const StringTransport& stringCall, LogSite site) {
  const std::string requestText = Json::StyledWriter().write(request);
  std::string replyText;
  const bool answered = stringCall ? stringCall(member, requestText, replyText)
                                   : CallWithStringArguments(lines, member, requestText, replyText, site);
  if (!answered) return false;
  if (FCMarshal::ParseToJson(replyText, reply)) return true;
  WriteLogLine(lines.parseFailed, site, member);
  return false;
}

bool ParseReturnValue(const LogLine& parseFailed, const std::string& text, LogSite site) {
  Json::Value root;
  Json::Reader reader;
  if (!reader.parse(text, root, true)) {
    WriteLogLine(parseFailed, site);
    return false;
  }
  return root["ret"].asBool();
}

}  // namespace zunde
