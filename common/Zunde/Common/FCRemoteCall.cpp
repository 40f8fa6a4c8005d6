#include "FCRemoteCall_internal.h"

#include "FCCallStatus_internal.h"
#include "FCIPCConnection.h"
#include "FCIPCError_internal.h"
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

const char kReplyNotJson[] = "the reply is not JSON";
const char kReplyUnreadable[] = "the reply does not hold what the method reads";

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
  BeginCall(member);
  bus::ClearLastBusError();
  if (connection->Call(std::string(bus::kCallListener), member, requestBuffer, reply) == -1) {
    WriteLogLine(lines.sendFailed, site, subject);
    const std::string& why = bus::LastBusError();
    EndCall(FCCallStatus::eCallBusFailure, why.empty() ? "the service answered with status -1" : why);
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

RemoteCall& RemoteCall::Require(bool check, const char* reason) {
  if (!rejected_ && !check) Refuse(member_, reason);
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
  EndCall(FCCallStatus::eCallBadReply, kReplyNotJson);
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
  // A reader that cannot read the reply throws to the caller, as it always
  // has; the outcome says so on the way.
  try {
    for (const auto& read : readers_) read(reply);
  } catch (...) {
    EndCall(FCCallStatus::eCallBadReply, kReplyUnreadable);
    throw;
  }
}

bool RemoteCall::Run() {
  Json::Value reply;
  if (!Exchange(reply)) return false;
  bool result = false;
  try {
    result = EndWithRet(reply);
  } catch (...) {
    EndCall(FCCallStatus::eCallBadReply, kReplyUnreadable);
    throw;
  }
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
  EndCall(FCCallStatus::eCallBadReply, kReplyNotJson);
  return false;
}

bool ParseReturnValue(const LogLine& parseFailed, const std::string& text, LogSite site) {
  Json::Value root;
  Json::Reader reader;
  if (!reader.parse(text, root, true)) {
    WriteLogLine(parseFailed, site);
    EndCall(FCCallStatus::eCallBadReply, kReplyNotJson);
    return false;
  }
  return EndWithRet(root);
}

}  // namespace zunde
