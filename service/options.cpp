#include "options.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace zunde::service {
namespace {

const char* const kUsage =
    "Usage: zunde-service [--data-dir DIR] [--slow-reply-ms N] [--catalogue FILE] [--lineup-size N]\n"
    "       zunde-service [--lineup-size N] --write-default-catalogue FILE\n"
    "Answers the zunde-provider library on the bus that DBUS_SYSTEM_BUS_ADDRESS names\n"
    "(else the system bus), keeping its state in DIR/zunde-service.db.\n"
    "  --data-dir DIR      the state folder, made when missing (default: $STATE_DIRECTORY,\n"
    "                      else $XDG_STATE_HOME/zunde-provider, else ~/.local/state/zunde-provider)\n"
    "  --slow-reply-ms N   how late answers are sent while the slow switch is on (default 3000)\n"
    "  --catalogue FILE    the channels and guide to offer (default: DIR/catalogue.json when\n"
    "                      there, else the built-in set)\n"
    "  --lineup-size N     channels in the built-in set (default 60, at most 100000)\n"
    "  --write-default-catalogue FILE  write the built-in set as a catalogue file and stop\n"
    "  --help, --version\n";

Options Stop(Options options, int code) {
  options.exitNow = true;
  options.exitCode = code;
  return options;
}

bool ParseNumber(const char* text, int& out, long low, long high) {
  char* end = nullptr;
  const long value = std::strtol(text, &end, 10);
  if (end == text || *end != '\0' || value < low || value > high) return false;
  out = static_cast<int>(value);
  return true;
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
    } else if (std::strcmp(arg, "--slow-reply-ms") == 0 && hasValue && ParseNumber(argv[i + 1], options.slowReplyMs, 0, 600000)) {
      ++i;
    } else if (std::strcmp(arg, "--lineup-size") == 0 && hasValue &&
               ParseNumber(argv[i + 1], options.lineupSize, 1, 100000)) {
      ++i;
    } else if (std::strcmp(arg, "--catalogue") == 0 && hasValue) {
      options.catalogue = argv[++i];
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
