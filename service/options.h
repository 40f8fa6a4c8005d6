// The command line of zunde-service.
#ifndef ZUNDE_SERVICE_OPTIONS_H
#define ZUNDE_SERVICE_OPTIONS_H

#include <string>

#include "storage_limits.h"

namespace zunde::service {

struct Options {
  std::string dataDir;      // where the store lives; made when missing
  int slowReplyMs = 3000;   // the delay of every answer while the slow switch is on
  std::string catalogue;    // the catalogue file; "" = DIR/catalogue.json if there, else the default set
  std::string xmltv;        // an XMLTV guide: activity 0's line-up and its programmes
  std::string m3u;          // an M3U playlist: the virtual channels
  std::string writeDefaultCatalogue;  // write the default set here and stop
  int lineupSize = 60;      // channels in the default set
  StorageLimits limits;     // how much of each growing table is kept
  bool readOnly = false;    // open the store read-only: changes are refused
  int maxStorePages = 0;    // cap on the store's pages; 0 = none
  std::string httpAddress = "127.0.0.1";  // where the page listens
  int httpPort = 0;         // the page's port; 0 = no page
  bool exitNow = false;     // --help or --version was answered, or the line was wrong
  int exitCode = 0;
};

// Reads argv; an empty --data-dir falls back to the usual state folder.
Options ParseOptions(int argc, char** argv);

// $STATE_DIRECTORY (systemd), else $XDG_STATE_HOME/zunde-provider, else
// ~/.local/state/zunde-provider.
std::string DefaultDataDir();

}  // namespace zunde::service

#endif
