// zunde-cli guide: the operator's programme guide as a grid, channels down
// and half-hour slots across.
#include <ZundeProvider.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <memory>

#include "arg_checks.h"
#include "direct_commands.h"
#include "guide_window.h"
#include "output.h"
#include "session.h"

namespace zcli {
namespace {

constexpr int kSlotSeconds = 30 * 60;
constexpr size_t kSlotWidth = 14;
constexpr size_t kNameWidth = 20;

struct GuideOptions {
  int activity = 0;
  std::string from = "now";  // "now", "HH:MM" today, or seconds since the epoch
  double hours = 3;
};

std::string Clock(long long when) {
  const time_t t = static_cast<time_t>(when);
  char text[8];
  std::strftime(text, sizeof text, "%H:%M", std::localtime(&t));
  return text;
}

std::string Fit(std::string text, size_t width) {
  if (text.size() > width) text = width > 1 ? text.substr(0, width - 1) + "~" : text.substr(0, width);
  return text + std::string(width - text.size(), ' ');
}

void PrintGrid(const std::vector<GuideRow>& rows, long long start, int slots, bool colour) {
  const long long now = std::time(nullptr), end = start + static_cast<long long>(slots) * kSlotSeconds;
  const auto column = [&](long long when) {
    return static_cast<size_t>(std::clamp(when - start, 0LL, end - start) * static_cast<long long>(kSlotWidth) / kSlotSeconds);
  };
  std::string header(kNameWidth, ' ');
  for (int slot = 0; slot < slots; ++slot) header += Fit(Clock(start + static_cast<long long>(slot) * kSlotSeconds), kSlotWidth);
  header.erase(header.find_last_not_of(' ') + 1);
  std::printf("%s\n", header.c_str());
  if (now >= start && now < end) {
    std::string marker(kNameWidth + column(now), ' ');
    std::printf("%s%s\n", marker.c_str(), colour ? "\033[1;31mv now\033[0m" : "v now");
  }
  for (const GuideRow& row : rows) {
    std::string line = Fit(row.channel.str_channel_number + " " + row.channel.str_channel_name, kNameWidth - 1) + " ";
    size_t at = 0;
    for (const FCRemoteProgram& program : row.programs) {
      const size_t from = std::max(at, column(program.utc_starttime));
      const size_t to = column(static_cast<long long>(program.utc_starttime) + program.duration);
      if (to <= from) continue;
      line += std::string(from - at, ' ');
      const std::string cell = "|" + Fit(program.strTitle, to - from - 1);
      const bool onNow = program.utc_starttime <= now && now < program.utc_starttime + program.duration;
      line += colour && onNow ? "\033[7m" + cell + "\033[0m" : cell;
      at = to;
    }
    std::printf("%s\n", line.c_str());
  }
}

Json::Value GuideJson(std::vector<GuideRow>& rows, long long start, double hours) {
  Json::Value out(Json::objectValue);
  out["start"] = Json::Int64(start);
  out["hours"] = hours;
  out["channels"] = Json::Value(Json::arrayValue);
  for (GuideRow& row : rows) {
    Json::Value channel = J(row.channel);
    channel["programs"] = Json::Value(Json::arrayValue);
    for (FCRemoteProgram& program : row.programs) channel["programs"].append(J(program));
    out["channels"].append(channel);
  }
  return out;
}

int Guide(const GuideOptions& options) {
  const long long start = ParseFrom(options.from) / kSlotSeconds * kSlotSeconds;
  const int slots = std::max(1, static_cast<int>(std::ceil(options.hours * 2)));
  std::vector<GuideRow> rows;
  if (const int failed = FetchGuide(options.activity, start, slots * kSlotSeconds, rows, "guide")) return failed;
  if (GlobalOptions().json)
    std::printf("%s\n", CompactJson(GuideJson(rows, start, options.hours)).c_str());
  else
    PrintGrid(rows, start, slots, isatty(STDOUT_FILENO) && std::getenv("NO_COLOR") == nullptr);
  return kOk;
}

}  // namespace

void AddGuide(CLI::App& app, Action& action) {
  auto options = std::make_shared<GuideOptions>();
  CLI::App* guide = app.add_subcommand("guide", "The operator's programme guide: channels down, half-hours across");
  guide->footer("Example: zunde-cli guide --activity 0 --from 18:00 --hours 2");
  guide->add_option("--activity", options->activity, "remote content activity (default 0)");
  guide->add_option("--from", options->from, kFromHelp)->check(CLI::Validator(CheckTime, "TIME"));
  guide->add_option("--hours", options->hours, "how many hours across (default 3)")->check(CLI::Range(0.5, 24.0));
  guide->callback([options, &action] { action = [options] { return Guide(*options); }; });
}

}  // namespace zcli
