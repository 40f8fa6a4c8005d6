#include "MBRNetworkChannelTable.h"

#include <algorithm>
#include <cstdint>

#include "FCLog_internal.h"

namespace {

// Copies the first channel that `matches` into `out`.
template <class Matches>
bool FindFirst(const std::list<FCMBRNetworkChannel>& channels, Matches matches, FCMBRNetworkChannel& out) {
  const auto found = std::find_if(channels.begin(), channels.end(), matches);
  if (found == channels.end()) return false;
  out = *found;
  return true;
}

// The line keeps the class name and source position it has always been
// reported under, so that existing log filters still find it.
void LogEmptyChannelTable() {
  __dlog_print(LOG_ID_MAIN, DLOG_WARN, zunde::kLogTag,
               FC_LOG_PREFIX_MOD "FCMBRNetworkChannelDB::GetMaxNumberOfMajorMinor(), m_mbrNetworkChannelDB is empty!\n",
               "MBRNetworkChannelTable", "GetMaxNumberOfMajorMinor", 100, zunde::kLogModuleNumber, 2);
}

}  // namespace

// --- FCMBRNetworkChannelTable ---

FCMBRNetworkChannelTable::FCMBRNetworkChannelTable() = default;

FCMBRNetworkChannelTable::FCMBRNetworkChannelTable(const FCMBRNetworkChannelTable& other) = default;

FCMBRNetworkChannelTable& FCMBRNetworkChannelTable::operator=(const FCMBRNetworkChannelTable& other) = default;

FCMBRNetworkChannelTable::~FCMBRNetworkChannelTable() = default;

bool FCMBRNetworkChannelTable::AppendNetworkChannel(const FCMBRNetworkChannel& channel) {
  m_mbrNetworkChannelDB.push_back(channel);
  return true;
}

bool FCMBRNetworkChannelTable::Merge(const FCMBRNetworkChannelTable& other) {
  // Copied first, so that merging a table into itself doubles it once.
  std::list<FCMBRNetworkChannel> copies(other.m_mbrNetworkChannelDB);
  m_mbrNetworkChannelDB.splice(m_mbrNetworkChannelDB.end(), copies);
  return true;
}

bool FCMBRNetworkChannelTable::FindNetworkChannelbyMajorMinor(const int& major, const int& minor,
                                                              FCMBRNetworkChannel& out) const {
  return FindFirst(
      m_mbrNetworkChannelDB,
      [&](const FCMBRNetworkChannel& channel) { return channel.GetMajor() == major && channel.GetMinor() == minor; },
      out);
}

bool FCMBRNetworkChannelTable::FindNetworkChannelbyChannelID(const int& channelId, FCMBRNetworkChannel& out) const {
  return FindFirst(
      m_mbrNetworkChannelDB, [&](const FCMBRNetworkChannel& channel) { return channel.GetChannelID() == channelId; },
      out);
}

bool FCMBRNetworkChannelTable::FindNetworkChannelByChannelIDOriginMajor(const int& channelId, const int& originMajor,
                                                                        FCMBRNetworkChannel& out) const {
  return FindFirst(
      m_mbrNetworkChannelDB,
      [&](const FCMBRNetworkChannel& channel) {
        return channel.GetChannelID() == channelId && channel.GetOriginMajor() == originMajor;
      },
      out);
}

bool FCMBRNetworkChannelTable::GetMaxNumberOfMajorMinor(int& maxMajor, int& maxMinor) const {
  maxMajor = 0;
  maxMinor = 0;
  if (m_mbrNetworkChannelDB.empty()) {
    LogEmptyChannelTable();
    return false;
  }
  for (const FCMBRNetworkChannel& channel : m_mbrNetworkChannelDB) {
    maxMajor = std::max(maxMajor, channel.GetMajor());
    maxMinor = std::max(maxMinor, channel.GetMinor());
  }
  return true;
}

void FCMBRNetworkChannelTable::Sort() {
  // std::list::sort is stable.
  m_mbrNetworkChannelDB.sort();
}

// --- FCMBRNetworkProgramTable ---

FCMBRNetworkProgramTable::FCMBRNetworkProgramTable() = default;

FCMBRNetworkProgramTable::FCMBRNetworkProgramTable(const FCMBRNetworkProgramTable& other) = default;

FCMBRNetworkProgramTable& FCMBRNetworkProgramTable::operator=(const FCMBRNetworkProgramTable& other) = default;

FCMBRNetworkProgramTable::~FCMBRNetworkProgramTable() = default;

bool FCMBRNetworkProgramTable::AppendNetworkProgram(FCMBRNetworkProgram& program) {
  m_mbrNetworkProgramDB.emplace(program.GetStartTime(), program);
  return true;
}

bool FCMBRNetworkProgramTable::Merge(const FCMBRNetworkProgramTable& other) {
  m_mbrNetworkProgramDB.insert(other.m_mbrNetworkProgramDB.begin(), other.m_mbrNetworkProgramDB.end());
  return true;
}

bool FCMBRNetworkProgramTable::FindNetworkProgrambyStartTime(unsigned long time, FCMBRNetworkProgram& out) const {
  // The guide's times are 32-bit on the TV; the end wraps the same way on
  // every host.
  const std::uint32_t at = static_cast<std::uint32_t>(time);
  for (const auto& entry : m_mbrNetworkProgramDB) {
    const std::uint32_t start = static_cast<std::uint32_t>(entry.first);
    const std::uint32_t end = start + static_cast<std::uint32_t>(entry.second.GetDuration());
    if (start <= at && at < end) {
      out = entry.second;
      return true;
    }
  }
  return false;
}
