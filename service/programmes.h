// Programmes, recommendations and filters made from the catalogue's
// computed slots, in the library's records.
#ifndef ZUNDE_SERVICE_PROGRAMMES_H
#define ZUNDE_SERVICE_PROGRAMMES_H

#include <string>
#include <vector>

#include "catalogue.h"

namespace zunde::service {

// The key a station's schedule is computed from: its program source id, so
// that the operators and the broadcast service show the same programme;
// the service id for a service no operator lists.
std::string ScheduleKey(const BroadcastChannel& channel);

// An operator channel's programme; its id is "<program source id>:<start>".
FCRemoteProgram OperatorProgram(const FCRemoteChannel& channel, const Slot& slot);
// A broadcast programme; its id is "<service id>:<start>", which is how
// the next and previous programmes find their channel.
FCRemoteProgram BroadcastProgram(const BroadcastChannel& channel, const Slot& slot);

// The channel key in front of a programme id's colon.
std::string ChannelKeyOfProgramId(const std::string& programId);

// Whether genres pass the filter: its genre id list, else that of its
// representative genre or of its recommendation group; no list passes all.
bool PassesFilter(const std::vector<std::string>& genres, const FCFilterCriteria& filter, const Catalogue& catalogue);

// "YYYY-MM-DD hh:mm" of a UTC time.
std::string TimeText(unsigned int utc);

}  // namespace zunde::service

#endif
