#include "FCRFNetworkChannelTable.h"

FCRFNetworkChannelTable::FCRFNetworkChannelTable() = default;

FCRFNetworkChannelTable::FCRFNetworkChannelTable(const FCRFNetworkChannelTable& other) = default;

FCRFNetworkChannelTable& FCRFNetworkChannelTable::operator=(const FCRFNetworkChannelTable& other) = default;

FCRFNetworkChannelTable::~FCRFNetworkChannelTable() = default;

bool FCRFNetworkChannelTable::AppendRFNetworkChannel(unsigned long long& serviceId) {
  m_rfNetworkChannelDB.push_back(serviceId);
  return true;
}
