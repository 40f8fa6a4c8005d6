#include "options.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace zunde::service {
namespace {

const char* const kUsage =
    "Usage: zunde-service [--data-dir DIR] [--slow-reply-ms N] [--catalogue FILE] [--lineup-size N]\n"
    "                     [--kpi-log-limit N] [--program-map-limit N] [--channel-map-limit N]\n"
    "                     [--read-only] [--max-store-pages N] [--xmltv FILE] [--m3u FILE]\n"
    "                     [--http [ADDRESS:]PORT]\n"
    "       zunde-service [--lineup-size N] --write-default-catalogue FILE\n"
    "Answers the zunde-provider library on the bus that DBUS_SYSTEM_BUS_ADDRESS names\n"
    "(else the system bus), keeping its state in DIR/zunde-service.db.\n"
    "  --data-dir DIR      the state folder, made when missing (default: $STATE_DIRECTORY,\n"
    "                      else $XDG_STATE_HOME/zunde-provider, else ~/.local/state/zunde-provider)\n"
    "  --slow-reply-ms N   how late answers are sent while the slow switch is on (default 3000)\n"
    "  --catalogue FILE    the channels and guide to offer (default: DIR/catalogue.json when\n"
    "                      there, else the built-in set)\n"
    "  --xmltv FILE        an XMLTV guide (.gz too): activity 0's line-up and its programmes\n"
    "  --m3u FILE          an extended M3U playlist (.gz too): the virtual channels\n"
    "                      (SIGHUP reads the catalogue and both files again)\n"
    "  --lineup-size N     channels in the built-in set (default 60, at most 100000)\n"
    "  --kpi-log-limit N   usage events kept, the oldest going first (default 1000)\n"
    "  --program-map-limit N  channel ids whose programme map is kept, the least\n"
    "                      recently set going first (default 10000)\n"
    "  --channel-map-limit N  channels one activity's map may hold; more are refused\n"
    "                      (default 100000)\n"
    "  --read-only         open the store read-only: reads are answered, changes refused\n"
    "                      (a store that cannot be written is opened so anyway)\n"
    "  --max-store-pages N let the store grow to N pages of 4 KiB at most; a change that\n"
    "                      needs more is refused as on a full disk (default: no cap)\n"
    "  --http [ADDRESS:]PORT  serve the page and its JSON API at http://ADDRESS:PORT/\n"
    "                      (ADDRESS defaults to 127.0.0.1; off unless given)\n"
    "  --write-default-catalogue FILE  write the built-in set as a catalogue file and stop\n"
    "  --help, --version\n";

Options Stop(Options options, int code) {
  options.exitNow = true;
  options.exitCode = code;
  return options;
}

// The options that take a number, and the numbers they allow.
struct NumberOption {
  const char* name;
  int* (*field)(Options&);
  long low;
  long high;
};

const NumberOption kNumberOptions[] = {
    {"--slow-reply-ms", [](Options& o) { return &o.slowReplyMs; }, 0, 600000},
    {"--lineup-size", [](Options& o) { return &o.lineupSize; }, 1, 100000},
    {"--kpi-log-limit", [](Options& o) { return &o.limits.kpiLog; }, 1, 100000000},
    {"--program-map-limit", [](Options& o) { return &o.limits.programMaps; }, 1, 100000000},
    {"--channel-map-limit", [](Options& o) { return &o.limits.channelMap; }, 1, 100000000},
    {"--max-store-pages", [](Options& o) { return &o.maxStorePages; }, 1, 2147483647},
};

bool ParseNumber(const char* text, int& out, long low, long high) {
  char* end = nullptr;
  const long value = std::strtol(text, &end, 10);
  if (end == text || *end != '\0' || value < low || value > high) return false;
  out = static_cast<int>(value);
  return true;
}

// True when argv[i] is a number option and argv[i + 1] a number it allows.
bool ParseNumberOption(Options& options, int argc, char** argv, int i) {
  for (const NumberOption& option : kNumberOptions) {
    if (std::strcmp(argv[i], option.name) == 0) {
      return i + 1 < argc && ParseNumber(argv[i + 1], *option.field(options), option.low, option.high);
    }
  }
  return false;
}

// "[ADDRESS:]PORT"; an IPv6 address comes in brackets.
bool ParseListenAddress(const std::string& text, Options& options) {
  const size_t colon = text.rfind(':');
  std::string address = colon == std::string::npos ? options.httpAddress : text.substr(0, colon);
  if (address.size() > 1 && address.front() == '[' && address.back() == ']') address = address.substr(1, address.size() - 2);
  if (address.empty()) return false;
  options.httpAddress = address;
  return ParseNumber(text.c_str() + (colon == std::string::npos ? 0 : colon + 1), options.httpPort, 1, 65535);
}

}  // namespace

std::string DefaultDataDir() {
  if (const char* state = std::getenv("STATE_DIRECTORY"); state && *state) {
    // systemd may list several folders separated by colons; the first is ours.
    const std::string folders(state);
    return folders.substr(0, folders.find(':'));
  }
  if (const char* xdg = std::getenv("XDG_STATE_HOME"); xdg && *xdg) return std::string(xdg) + "/zunde-provider";
  const char* home = std::getenv("HOME");
  return std::string(home ? home : ".") + "/.local/state/zunde-provider";
}

Options ParseOptions(int argc, char** argv) {
  Options options;
  for (int i = 1; i < argc; ++i) {
    const char* arg = argv[i];
    const bool hasValue = i + 1 < argc;
    if (std::strcmp(arg, "--help") == 0) {
      std::fputs(kUsage, stdout);
      return Stop(options, 0);
    }
    if (std::strcmp(arg, "--version") == 0) {
      std::printf("zunde-service %s\n", ZUNDE_SERVICE_VERSION);
      return Stop(options, 0);
    }
    if (std::strcmp(arg, "--data-dir") == 0 && hasValue) {
      options.dataDir = argv[++i];
    } else if (ParseNumberOption(options, argc, argv, i)) {
      ++i;
    } else if (std::strcmp(arg, "--read-only") == 0) {
      options.readOnly = true;
    } else if (std::strcmp(arg, "--http") == 0 && hasValue && ParseListenAddress(argv[i + 1], options)) {
      ++i;
    } else if (std::strcmp(arg, "--catalogue") == 0 && hasValue) {
      options.catalogue = argv[++i];
    } else if (std::strcmp(arg, "--xmltv") == 0 && hasValue) {
      options.xmltv = argv[++i];
    } else if (std::strcmp(arg, "--m3u") == 0 && hasValue) {
      options.m3u = argv[++i];
    } else if (std::strcmp(arg, "--write-default-catalogue") == 0 && hasValue) {
      options.writeDefaultCatalogue = argv[++i];
    } else {
      std::fprintf(stderr, "zunde-service: bad argument '%s'\n%s", arg, kUsage);
      return Stop(options, 2);
    }
  }
  if (options.dataDir.empty()) options.dataDir = DefaultDataDir();
  return options;
}

}  // namespace zunde::service
