// Records with every field set to a value of its own, and a view of a JSON
// object as its keys and their types.
#ifndef ZUNDE_TESTS_RECORD_SAMPLES_H
#define ZUNDE_TESTS_RECORD_SAMPLES_H

#include <json/json.h>

#include <map>
#include <string>

#include "FCElementData.h"
#include "FCSmartChannelGuide.h"

namespace samples {

using KeyTypes = std::map<std::string, Json::ValueType>;

inline KeyTypes TypesOf(const Json::Value& object) {
  KeyTypes types;
  for (const std::string& key : object.getMemberNames()) types[key] = object[key].type();
  return types;
}

FCRemoteChannel Channel();
FCRemoteChannelKey ChannelKey();
FCRemoteProgram Program();
FCSmartChannelGuide Guide(int timeslot = 3, int sequence = 1);
FCSmartChannelGuide_Future FutureGuide(int dayslot = 2, int sequence = 1);

}  // namespace samples

#endif
