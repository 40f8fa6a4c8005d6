// Broadcast (RF) channels: navigation by genre, channel counts per genre,
// and the meta programme guide of a broadcast service.
//
// Obtained from FCAPI::GetRFNetworkChannelAPI(). Every operation is one
// blocking call to the service. Broadcast services are 64-bit service ids.
#ifndef ZUNDE_FCRFNETWORKCHANNELAPI_H
#define ZUNDE_FCRFNETWORKCHANNELAPI_H

#include <map>
#include <string>
#include <vector>

class FCRFNetworkChannelTable;
class FCRemoteProgram;
class FCRepGenreInfo;

class FCRFNetworkChannelAPI {
 public:
  // How channel up and down move; the service defines the values.
  enum ENavigationMode : int {};

  virtual ~FCRFNetworkChannelAPI() {}

  virtual bool Reset() = 0;
  virtual bool SetNavigationMode(ENavigationMode mode) = 0;
  virtual bool GetNavigationMode(ENavigationMode& mode) = 0;
  virtual bool SetGenreForNavigation(std::string genre) = 0;
  virtual bool GetGenreForNavigation(std::string& genre) = 0;
  virtual bool GetRFNetworkChannelMapByGenre(std::string genre, FCRFNetworkChannelTable& channels) = 0;
  virtual bool GetRFNetworkChannelUpByGenre(std::string genre, unsigned long long& current,
                                            unsigned long long& next) = 0;
  virtual bool GetRFNetworkChannelDownByGenre(std::string genre, unsigned long long& current,
                                              unsigned long long& next) = 0;
  // The number of channels of `genre`; 0 when the call fails.
  virtual int GetRFNetworkChannelCountByGenre(std::string genre) = 0;
  virtual bool GetRFNetworkChannelCountByGenreList(std::vector<FCRepGenreInfo>& genres,
                                                   std::map<std::string, int>& counts) = 0;
  virtual bool GetPresentMetaProgram(unsigned long long const& serviceId, FCRemoteProgram& program) = 0;
  virtual bool GetNextMetaProgram(FCRemoteProgram const& current, FCRemoteProgram& next) = 0;
  virtual bool GetPrevMetaProgram(FCRemoteProgram const& current, FCRemoteProgram& previous) = 0;
  virtual bool GetMetaProgramMap(unsigned long long const& serviceId, unsigned long startTime, int duration,
                                 std::map<unsigned int, FCRemoteProgram>& programs) = 0;
  virtual bool CheckMetaProgramExist() = 0;
};

#endif
