#include "catalogue.h"

#include <algorithm>

#include "guide_files/listed_guide.h"

namespace zunde::service {
namespace {

const time_t kDay = 86400;

// A stable hash (FNV-1a), so that a channel keeps its place in its
// schedule's cycle from one build to the next.
size_t Seed(const std::string& key) {
  uint64_t hash = 1469598103934665603ULL;
  for (unsigned char c : key) hash = (hash ^ c) * 1099511628211ULL;
  return static_cast<size_t>(hash % 1000003);
}

// The slots of one UTC day: the schedule's lengths in turn from midnight,
// the last one cut at the next midnight. The same titles come back at the
// same times every day.
std::vector<Slot> DaySlots(const Schedule& schedule, size_t seed, long day) {
  std::vector<Slot> slots;
  const time_t end = (day + 1) * kDay;
  size_t turn = seed;
  for (time_t start = day * kDay; start < end; ++turn) {
    const time_t length = std::min<time_t>(schedule.minutes[turn % schedule.minutes.size()] * 60, end - start);
    const size_t n = slots.size();
    slots.push_back({static_cast<unsigned int>(start), static_cast<unsigned int>(length),
                     schedule.titles[(seed + n) % schedule.titles.size()], schedule.genre, day * 1000 + static_cast<long>(n), {}});
    start += length;
  }
  return slots;
}

time_t DayStart(time_t time) { return time / kDay * kDay; }

// A guide file's programmes are shown as listed, whatever the window.
std::vector<Slot> ListedSlots(const guide::ListedGuide& listed, const std::string& key, time_t from, time_t to) {
  std::vector<Slot> slots;
  for (FCRemoteProgram& program : listed.Between(key, from, to)) {
    Slot slot{program.utc_starttime, static_cast<unsigned int>(program.duration), program.strTitle,
              program.genre_array.empty() ? "" : program.genre_array.front(), static_cast<long>(program.utc_starttime / 60), {}};
    slot.listed = std::move(program);
    slots.push_back(std::move(slot));
  }
  return slots;
}

}  // namespace

const Lineup* Catalogue::LineupOf(int activity) const {
  for (const Lineup& lineup : lineups) {
    if (lineup.activity == activity) return &lineup;
  }
  return nullptr;
}

const BroadcastChannel* Catalogue::BroadcastById(unsigned long long serviceId) const {
  for (const BroadcastChannel& channel : broadcast) {
    if (channel.serviceId == serviceId) return &channel;
  }
  return nullptr;
}

const BroadcastChannel* Catalogue::BroadcastBySource(const std::string& sourceId) const {
  for (const BroadcastChannel& channel : broadcast) {
    if (!sourceId.empty() && channel.sourceId == sourceId) return &channel;
  }
  return nullptr;
}

const VirtualChannel* Catalogue::VirtualById(unsigned long long serviceId) const {
  for (const VirtualChannel& channel : virtualChannels) {
    if (channel.serviceId == serviceId) return &channel;
  }
  return nullptr;
}

const Schedule& Catalogue::ScheduleOf(const std::string& genre) const {
  for (const Schedule& schedule : schedules) {
    if (schedule.genre == genre) return schedule;
  }
  return schedules.front();
}

bool Catalogue::Lists(const std::string& key) const { return listed && listed->Has(key); }

std::vector<Slot> Catalogue::SlotsBetween(const std::string& key, const std::string& genre, time_t from, time_t to,
                                          time_t end) const {
  if (Lists(key)) return ListedSlots(*listed, key, from, to);
  from = std::max(from, DayStart(WindowStart()));
  to = std::min(to, end);
  std::vector<Slot> slots;
  const Schedule& schedule = ScheduleOf(genre);
  for (time_t day = DayStart(from); day < to; day += kDay) {
    for (const Slot& slot : DaySlots(schedule, Seed(key), static_cast<long>(day / kDay))) {
      if (slot.start < to && slot.start + slot.duration > from && slot.start < end) slots.push_back(slot);
    }
  }
  return slots;
}

bool Catalogue::SlotAt(const std::string& key, const std::string& genre, time_t time, time_t end, Slot& slot) const {
  const std::vector<Slot> slots = SlotsBetween(key, genre, time, time + 1, end);
  if (slots.empty()) return false;
  slot = slots.front();
  return true;
}

}  // namespace zunde::service
