// A set-top box on TV source 3: its activity, a channel map and a favourite.
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
  FCMBRNetworkChannelTable map;
  map.AppendNetworkChannel(Channel(7, "News"));
  map.AppendNetworkChannel(Channel(9, "Films"));
  stb->SetMBRNetworkChannelMap(activity, map);

  FCMBRNetworkChannel news = Channel(7, "News");
  const auto firstList = static_cast<FCMBRNetworkChannel::EFavorite>(0);
  stb->AddFavoriteMBRNetworkChannel(activity, firstList, news);

  // Query 2: the channels in any favourite list.
  FCMBRNetworkChannelTable favourites;
  stb->GetMBRNetworkChannelMap(activity, favourites, static_cast<FCMBRNetworkChannelAPI::EMBRNetworkChannelQuery>(2));
  std::cout << "activity " << activity << " favourites:";
  for (const FCMBRNetworkChannel& channel : favourites.GetNetworkChannelList())
    std::cout << " " << channel.GetMajor() << "-" << channel.GetMinor() << " " << channel.GetName();
  std::cout << "\n";
  FCAPI::Finalize();
  return 0;
}
