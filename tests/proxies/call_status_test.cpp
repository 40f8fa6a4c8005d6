// The outcome of the last call, as an application reads it after a failure.
#include <gtest/gtest.h>

#include "ZundeProvider.h"
#include "test_service.h"

namespace {

using zunde::testing::TestService;
using Mbr = FCMBRNetworkChannelAPI;

struct StatusCase {
  const char* reply;  // null: the service is not running
  int activity;
  FCCallStatus::EKind kind;
  const char* reason;  // the start of the reason
};

TEST(CallStatus, SaysHowTheLastCallEndedAndWhy) {
  const StatusCase cases[] = {
      {"{\"ret\": true, \"headend id\": \"NY1\"}", 0, FCCallStatus::eCallOk, ""},
      {"{}", 5, FCCallStatus::eCallRefused, "the activity is not 0 to 4"},
      {"not json", 0, FCCallStatus::eCallBadReply, "the reply is not JSON"},
      {"{\"ret\": false, \"error\": \"no head-end\"}", 0, FCCallStatus::eCallServiceSaidNo, "no head-end"},
      {nullptr, 0, FCCallStatus::eCallBusFailure, "org.freedesktop.DBus.Error.ServiceUnknown: "},
  };
  for (const StatusCase& row : cases) {
    if (row.reply) {
      TestService::Start();
      TestService::Reply("GetHeadEndID", row.reply);
    }
    std::string headEnd;
    FCAPI::GetMBRNetworkChannelAPI()->GetHeadEndID(static_cast<Mbr::EActivityID>(row.activity), headEnd);
    const FCCallStatus status = FCAPI::GetLastCallStatus();
    if (row.reply) {
      EXPECT_EQ(TestService::TakeCalls().size(), row.kind == FCCallStatus::eCallRefused ? 0u : 1u) << row.reply;
      TestService::Stop();
    }
    EXPECT_EQ(status.kind, row.kind) << status.reason;
    EXPECT_EQ(status.member, "GetHeadEndID");
    EXPECT_EQ(status.reason.rfind(row.reason, 0), 0u) << status.reason;
  }
}

}  // namespace
