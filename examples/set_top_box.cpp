// A set-top box on TV source 3: its activity, a channel map and a favourite.
// A channel map that is already there is left as it is: the example adds its
// favourite to that map's first channel instead of replacing it.
#include <ZundeProvider.h>

#include <iostream>

namespace {

FCMBRNetworkChannel Channel(int major, const char* name) {
  FCMBRNetworkChannel channel;
  std::string text = name;
  channel.SetMajor(major);
  channel.SetMinor(1);
  channel.SetOriginMajor(major);
  channel.SetChannelID(major);
  channel.SetName(text);
  return channel;
}

}  // namespace

int main() {
  FCAPI::Initialize();
  FCMBRNetworkChannelAPI* stb = FCAPI::GetMBRNetworkChannelAPI();

  FCMBRNetworkChannelAPI::EActivityID activity{};
  if (!stb->AllocateActivityIDBySourceID(3, activity)) {
    std::cerr << "no activity: is zunde-service running?\n";
    return 1;
  }
  // Query 0: every channel; query 2: the channels in any favourite list.
  const auto every = static_cast<FCMBRNetworkChannelAPI::EMBRNetworkChannelQuery>(0);
  const auto inFavourites = static_cast<FCMBRNetworkChannelAPI::EMBRNetworkChannelQuery>(2);
  FCMBRNetworkChannelTable map;
  if (!stb->GetMBRNetworkChannelMap(activity, map, every)) {
    std::cerr << "activity " << activity << ": its channel map could not be read\n";
    return 1;
  }
  if (map.GetNetworkChannelList().empty()) {
    map.AppendNetworkChannel(Channel(7, "News"));
    map.AppendNetworkChannel(Channel(9, "Films"));
    if (!stb->SetMBRNetworkChannelMap(activity, map)) {
      std::cerr << "activity " << activity << ": the channel map was refused\n";
      return 1;
    }
  }

  FCMBRNetworkChannel first = map.GetNetworkChannelList().front();
  const auto firstList = static_cast<FCMBRNetworkChannel::EFavorite>(0);
  if (!stb->AddFavoriteMBRNetworkChannel(activity, firstList, first)) {
    std::cerr << "activity " << activity << ": the favourite was refused\n";
    return 1;
  }

  FCMBRNetworkChannelTable favourites;
  if (!stb->GetMBRNetworkChannelMap(activity, favourites, inFavourites)) {
    std::cerr << "activity " << activity << ": its favourites could not be read\n";
    return 1;
  }
  std::cout << "activity " << activity << " favourites:";
  for (const FCMBRNetworkChannel& channel : favourites.GetNetworkChannelList())
    std::cout << " " << channel.GetMajor() << "-" << channel.GetMinor() << " " << channel.GetName();
  std::cout << "\n";
  FCAPI::Finalize();
  return 0;
}
