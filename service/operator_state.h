// What the service keeps per operator activity: the configuration set over
// the catalogue's, and how far the guide was loaded past its window.
#ifndef ZUNDE_SERVICE_OPERATOR_STATE_H
#define ZUNDE_SERVICE_OPERATOR_STATE_H

#include <ctime>
#include <optional>

#include "FCElementData.h"
#include "store.h"

namespace zunde::service {

// The configuration set for `activity`; none when the catalogue's holds.
std::optional<FCRemoteMSOConfig> LoadOperatorConfig(const Store& store, int activity);
void SaveOperatorConfig(Store& store, int activity, FCRemoteMSOConfig config);

// Where the loaded guide of `activity` ends; 0 when nothing more was loaded.
time_t LoadGuideLoadedUntil(const Store& store, int activity);
void SaveGuideLoadedUntil(Store& store, int activity, time_t end);

}  // namespace zunde::service

#endif
