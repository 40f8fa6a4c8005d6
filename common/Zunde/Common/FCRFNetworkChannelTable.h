// The broadcast channels of one genre: a list of 64-bit service ids.
//
// The ids keep the order in which they were appended; nothing is ever
// deduplicated. The JSON form, "service list", is written and read by
// FCMarshal (RFNetworkChannelTableToJson and its reader).
#ifndef ZUNDE_FCRFNETWORKCHANNELTABLE_H
#define ZUNDE_FCRFNETWORKCHANNELTABLE_H

#include <list>

class FCMarshal;

class FCRFNetworkChannelTable {
 public:
  FCRFNetworkChannelTable();
  FCRFNetworkChannelTable(const FCRFNetworkChannelTable& other);
  FCRFNetworkChannelTable& operator=(const FCRFNetworkChannelTable& other);
  virtual ~FCRFNetworkChannelTable();

  const std::list<unsigned long long>& GetRFNetworkChannelList() const { return m_rfNetworkChannelDB; }

  // Appends a copy of `serviceId` at the end; true.
  bool AppendRFNetworkChannel(unsigned long long& serviceId);

 private:
  friend class FCMarshal;  // the JSON form

  std::list<unsigned long long> m_rfNetworkChannelDB;
};

#endif
