// What the service keeps of the remote content environment: country and
// language, recommendation type, personal user id and access token.
#ifndef ZUNDE_SERVICE_ENVIRONMENT_STATE_H
#define ZUNDE_SERVICE_ENVIRONMENT_STATE_H

#include <string>

#include "FCRemoteContentTypes.h"
#include "store.h"

namespace zunde::service {

struct Environment {
  std::string country = "US";
  std::string language = "en";
  eRecommendTypeOption recommend = static_cast<eRecommendTypeOption>(0);
  std::string userId;
  std::string token;
};

// The defaults until something was saved.
Environment LoadEnvironment(const Store& store);
void SaveEnvironment(Store& store, const Environment& environment);
// Back to the defaults.
void EraseEnvironment(Store& store);

}  // namespace zunde::service

#endif
