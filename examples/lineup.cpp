// The operator's line-up with what is on each channel now.
#include <ZundeProvider.h>

#include <ctime>
#include <iostream>

int main() {
  FCAPI::Initialize();
  FCRemoteContent_MSOAPI* catalogue = FCAPI::GetRemoteContentMSOAPI();
  const auto activity = static_cast<eRemoteContentActivity>(0);

  std::vector<FCRemoteChannel> channels;
  if (!catalogue->GetFullChannelList(activity, channels)) {
    std::cerr << "no line-up: the service did not answer or has none\n";
    return 1;
  }
  std::vector<std::string> ids;
  for (const FCRemoteChannel& channel : channels) ids.push_back(channel.str_program_source_id);

  // A one-second window at the current time holds exactly the programmes on now.
  const int now = static_cast<int>(std::time(nullptr));
  FCFilterCriteria noFilter;
  std::map<std::string, std::vector<FCRemoteProgram> > programs;
  if (!catalogue->GetProgramMap(activity, ids, now, 1, noFilter, programs)) {
    std::cerr << "no programme guide: the service did not answer or has none\n";
    return 1;
  }

  for (const FCRemoteChannel& channel : channels) {
    const std::vector<FCRemoteProgram>& onNow = programs[channel.str_program_source_id];
    std::cout << channel.str_channel_number << "  " << channel.str_channel_name << "  "
              << (onNow.empty() ? "-" : onNow.front().strTitle) << "\n";
  }
  FCAPI::Finalize();
  return 0;
}
