#include "FCMBRNetworkChannelAPI.h"

bool FCMBRNetworkChannelAPI::SetCurrentMBRNetworkChannel(EActivityID, FCMBRNetworkChannel&) { return false; }

bool FCMBRNetworkChannelAPI::GetCurrentMBRNetworkChannel(EActivityID, FCMBRNetworkChannel&) { return false; }

bool FCMBRNetworkChannelAPI::RegisterMBRNetworkChannelHistory(FIMBRNetworkChannelHistory*) { return false; }
