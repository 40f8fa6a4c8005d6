// What the service keeps of the broadcast navigation: its mode and the
// genre it walks ("" for all).
#ifndef ZUNDE_SERVICE_NAVIGATION_STATE_H
#define ZUNDE_SERVICE_NAVIGATION_STATE_H

#include <string>

#include "store.h"

namespace zunde::service {

struct Navigation {
  int mode = 0;
  std::string genre;
};

Navigation LoadNavigation(const Store& store);
void SaveNavigation(Store& store, const Navigation& navigation);

}  // namespace zunde::service

#endif
