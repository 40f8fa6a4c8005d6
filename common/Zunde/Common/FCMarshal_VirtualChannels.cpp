#include "FCMarshal.h"
#include "FCVirtualRecordJson_internal.h"

bool FCMarshal::VCServiceIdToJson(unsigned long long id, Json::Value& root) {
  zunde::vcjson::WriteServiceId(root, id);
  return true;
}

bool FCMarshal::VCJsonToServiceId(Json::Value& root, unsigned long long& id) {
  id = zunde::vcjson::ReadServiceId(root);
  return true;
}
