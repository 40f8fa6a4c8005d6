// Tables of the set-top-box records: the channel map of one activity and
// the programme guide of one channel.
//
//   FCMBRNetworkChannelTable  channels in list order, duplicates allowed
//   FCMBRNetworkProgramTable  programmes keyed by start time, one per time
//
// Their JSON forms are written and read by FCMarshal
// (MBRNetworkChannelTableToJson, MBRProgramTableToJson and their readers).
#ifndef ZUNDE_MBRNETWORKCHANNELTABLE_H
#define ZUNDE_MBRNETWORKCHANNELTABLE_H

#include <list>
#include <map>

#include "MBRNetworkChannel.h"

class FCMarshal;

// The channels of one activity, in insertion order until `Sort`. Nothing
// is ever deduplicated.
class FCMBRNetworkChannelTable {
 public:
  FCMBRNetworkChannelTable();
  FCMBRNetworkChannelTable(const FCMBRNetworkChannelTable& other);
  FCMBRNetworkChannelTable& operator=(const FCMBRNetworkChannelTable& other);
  ~FCMBRNetworkChannelTable();

  const std::list<FCMBRNetworkChannel>& GetNetworkChannelList() const { return m_mbrNetworkChannelDB; }

  // Appends a copy at the end; true.
  bool AppendNetworkChannel(const FCMBRNetworkChannel& channel);
  // Appends copies of all channels of `other`, in its order; true.
  bool Merge(const FCMBRNetworkChannelTable& other);

  // The look-ups copy the first channel, from the front, whose keys all
  // equal the given ones into `out` and answer true; without a match they
  // answer false and leave `out` alone.
  //
  // By the major number as shown (not the origin major) and the minor.
  bool FindNetworkChannelbyMajorMinor(const int& major, const int& minor, FCMBRNetworkChannel& out) const;
  bool FindNetworkChannelbyChannelID(const int& channelId, FCMBRNetworkChannel& out) const;
  bool FindNetworkChannelByChannelIDOriginMajor(const int& channelId, const int& originMajor,
                                                FCMBRNetworkChannel& out) const;

  // The highest major and, separately, the highest minor of the table, so
  // the minor need not belong to the channel of the highest major. Both
  // start at 0, so negative numbers never show. An empty table logs a
  // warning and answers false with both 0.
  bool GetMaxNumberOfMajorMinor(int& maxMajor, int& maxMinor) const;

  // Orders by FCMBRNetworkChannel::operator< (major, minor, channel id);
  // channels equal in those keep their order.
  void Sort();

 private:
  friend class FCMarshal;  // the JSON form

  std::list<FCMBRNetworkChannel> m_mbrNetworkChannelDB;
};

// The programme guide of a channel: one programme per start time, in
// ascending start time. Start times are unsigned 32-bit seconds of the epoch.
class FCMBRNetworkProgramTable {
 public:
  FCMBRNetworkProgramTable();
  FCMBRNetworkProgramTable(const FCMBRNetworkProgramTable& other);
  FCMBRNetworkProgramTable& operator=(const FCMBRNetworkProgramTable& other);
  ~FCMBRNetworkProgramTable();

  const std::map<unsigned long, FCMBRNetworkProgram>& GetNetworkProgramMap() const { return m_mbrNetworkProgramDB; }

  // Stores a copy under its own start time, unless a programme already
  // starts then: the programme already there stays. Always true.
  bool AppendNetworkProgram(FCMBRNetworkProgram& program);
  // Adds the programmes of `other` at the start times not yet taken; those
  // already taken keep their programme. True.
  bool Merge(const FCMBRNetworkProgramTable& other);

  // The first programme, in ascending start time, with
  // start <= time < start + duration, all unsigned 32-bit: the end wraps
  // around 2^32, so a programme of duration 0, or one whose end wraps past
  // the top of the range, never matches a time at or after its start.
  bool FindNetworkProgrambyStartTime(unsigned long time, FCMBRNetworkProgram& out) const;

 private:
  // The JSON reader stores each programme under the start time the
  // document gives it, replacing what is there.
  friend class FCMarshal;

  std::map<unsigned long, FCMBRNetworkProgram> m_mbrNetworkProgramDB;
};

#endif
