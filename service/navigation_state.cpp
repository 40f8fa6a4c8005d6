#include "navigation_state.h"

#include "FCMarshal.h"

namespace zunde::service {
namespace {

const char kNavigationKey[] = "broadcast/navigation";

}  // namespace

Navigation LoadNavigation(const Store& store) {
  Navigation navigation;
  Json::Value doc = store.Get(kNavigationKey);
  if (doc.isNull()) return navigation;
  FCMarshal::JsonToNavigationMode(doc, navigation.mode);
  FCMarshal::JsonToGenre(doc, navigation.genre);
  return navigation;
}

void SaveNavigation(Store& store, const Navigation& navigation) {
  Json::Value doc(Json::objectValue);
  FCMarshal::NavigationModeToJson(navigation.mode, doc);
  FCMarshal::GenreToJson(navigation.genre, doc);
  store.Put(kNavigationKey, doc);
}

}  // namespace zunde::service
