// What the payload benchmark needs besides the benchmarks themselves: the
// answering service scripted over its control interface, a bare libdbus
// client doing the library's exchange, the reply texts, and peak memory.
#ifndef ZUNDE_BENCH_SUPPORT_H
#define ZUNDE_BENCH_SUPPORT_H

#include <benchmark/benchmark.h>
#include <dbus/dbus.h>
#include <sys/types.h>

#include <cstddef>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace zunde::bench {

// The private bus and the scriptable test service on it, answering every
// member without a script of its own with `replyAll`; both end with it.
class AnsweringService {
 public:
  explicit AnsweringService(const char* replyAll);
  ~AnsweringService();
  AnsweringService(const AnsweringService&) = delete;
  AnsweringService& operator=(const AnsweringService&) = delete;

 private:
  pid_t pid_;
};

// From now on the service answers `member` with `payload` (status 0), `delayMs` after each call.
void Script(const std::string& member, const std::string& payload, unsigned delayMs = 0);
// Lets the service forget the calls it recorded, so big requests do not pile up there.
void ForgetCalls();

// A private connection to the bus, shareable between threads.
DBusConnection* BareConnection();
// One "MethodCall" exactly as the library sends it, answered and released.
bool BareCall(DBusConnection* connection, const char* member, const std::string& request);

// A JSON text of about `size` bytes with "ret": true.
std::string PaddedText(std::size_t size);
// A line-up of `count` channels, as the service sends it.
std::string ChannelListText(int count);
// A week of hourly programmes on `channels` channels, as the service sends it.
std::string WeekProgramMapText(int channels);

// Steps timed in turns, each on a counter of its own (seconds per
// iteration): whatever else the machine does falls on all of them alike,
// which separate runs cannot promise.
using Step = std::pair<std::string, std::function<void()> >;
void InTurns(benchmark::State& state, const std::vector<Step>& steps);

// Peak resident memory above the idle process while `receive` runs once, in
// a child forked for it after `warmUp` ran; -1 when it cannot be measured.
long PeakBytesDuring(const std::function<void()>& warmUp, const std::function<void()>& receive);

}  // namespace zunde::bench

#endif
