// How much of each table that grows with use the service keeps. Beyond a
// limit the oldest rows go in the transaction that adds the new one, except
// in a channel map, where dropping a channel nobody removed would be worse
// than refusing the new one.
#ifndef ZUNDE_SERVICE_STORAGE_LIMITS_H
#define ZUNDE_SERVICE_STORAGE_LIMITS_H

namespace zunde::service {

struct StorageLimits {
  int kpiLog = 1000;        // usage events kept, newest
  int programMaps = 10000;  // channel ids whose programme map is kept, last set
  int channelMap = 100000;  // channels one activity's map may hold
};

}  // namespace zunde::service

#endif
