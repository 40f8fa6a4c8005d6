// zunde-service on an XMLTV guide and an M3U playlist, read back through
// the library's proxies; guide files it must refuse.
#include <gtest/gtest.h>
#include <signal.h>
#include <stdlib.h>

#include <chrono>
#include <ctime>
#include <fstream>
#include <functional>
#include <thread>

#include "FCElementData.h"
#include "FCRemoteContentOnTV_MSO_Proxy.h"
#include "FCRFNetworkChannelTable.h"
#include "FCVirtualProgramData.h"
#include "RFNetworkChannelManager_Proxy.h"
#include "FCVirtualChannels_Proxy.h"
#include "running_service.h"

namespace {

using zunde::testing::RunningService;

FCRemoteContentOnTV_MSO_Proxy mso;
FCVirtualChannels_Proxy vc;
FCRFNetworkChannelManager_Proxy rf;
const auto A0 = static_cast<eRemoteContentActivity>(0);
const std::string kData = ZUNDE_GUIDE_DATA;
const int kMorning = 1893484800;  // 2030-01-01 08:00 UTC, six hours before the files' programmes end

std::string Lineup() {
  std::vector<FCRemoteChannel> channels;
  std::string text = std::to_string(mso.GetFullChannelList(A0, channels));
  for (const FCRemoteChannel& c : channels) {
    text += " [" + c.str_channel_number + "|" + c.str_major + "|" + c.str_minor + "|" + c.str_channel_name + "|" +
            c.str_icon_url + "|" + c.str_program_source_id + "]";
  }
  return text;
}

std::string Guide(std::vector<std::string> sources, int from = kMorning) {
  std::map<std::string, std::vector<FCRemoteProgram>> map;
  FCFilterCriteria all;
  std::string text = std::to_string(mso.GetProgramMap(A0, sources, from, 6 * 3600, all, map));
  for (const auto& [source, programs] : map) {
    for (const FCRemoteProgram& p : programs) {
      std::string genres;
      for (const std::string& g : p.genre_array) genres += g + ",";
      text += " [" + p.str_program_id + "|" + std::to_string(p.utc_starttime) + "+" + std::to_string(p.duration) + "|" +
              p.str_lang + "|" + p.strTitle + "|" + p.str_short_desc + "|" + genres + "|" + p.str_cert_flag + "|" +
              p.str_poster_url + "]";
    }
  }
  return text;
}

std::string Genres() {
  std::vector<FCGenreInfo> genres;
  std::string text = std::to_string(mso.GetGenreList(A0, genres));
  for (const FCGenreInfo& g : genres) {
    if (g.str_id[0] == 'X') text += " " + g.str_id + "=" + g.str_name;
  }
  return text;
}

unsigned long long Playlist(const std::string& service) {
  unsigned long long id = 0;
  vc.GetServiceIdFromOnTVProviderAndService("m3u", service, id);
  return id;
}

// Which of the playlist's channels the broadcast navigation lists under `genre`.
std::string Navigation(const std::string& genre) {
  FCRFNetworkChannelTable table;
  std::string text = std::to_string(rf.GetRFNetworkChannelMapByGenre(genre, table));
  for (unsigned long long id : table.GetRFNetworkChannelList()) {
    for (const char* service : {"uno.example", "dyo.example", "No Guide"}) {
      if (id == Playlist(service)) text += std::string(" ") + service;
    }
  }
  return text;
}

std::string Virtual(const std::string& service) {
  const unsigned long long id = Playlist(service);
  std::map<unsigned int, FCVirtualProgramData> programs;
  FCVirtualChannelInfo info;
  std::string logo;
  std::string text = std::to_string(vc.GetFeaturedVirtualChannelInfo(id, info) &&
                                    vc.GetChannelLogo(id, static_cast<FCVirtualChannelsAPI::EChannelLogoSize>(0), logo) &&
                                    vc.GetProgramList(id, kMorning, 6 * 3600, programs));
  text += " " + info.GetMajor() + "|" + info.GetChannelName() + "|" + logo;
  for (const auto& [start, p] : programs) text += " [" + p.GetTitle() + "|" + p.GetContentUri() + "]";
  return text;
}

class GuideFiles : public ::testing::Test {
 protected:
  void SetUp() override {
    char dir[] = "/tmp/zunde-guide-test-XXXXXX";
    dir_ = mkdtemp(dir);
  }
  void TearDown() override {
    RunningService::Stop();
    std::system(("rm -rf " + dir_).c_str());
  }
  std::string dir_;
};

struct Row {
  const char* name;
  std::function<std::string()> read;
  std::string expected;
};

TEST_F(GuideFiles, TheGuideAndPlaylistReadBackAsTheMappingSays) {
  RunningService::Start(dir_, 3000, {"--xmltv", kData + "/guide.xml", "--m3u", kData + "/playlist.m3u"});
  const Row rows[] = {
      {"lcn, else a display-name's leading number, else the position",
       Lineup,
       "1 [5|5|0|5 Uno|http://i.example/uno.png|uno.example] [12|12|0|Δύο||dyo.example] [3|3|0|三チャンネル||san.example]"},
      {"zone offsets, the user's language, dd_progid then xmltv_ns ids, open ends close at the next start",
       [] { return Guide({"uno.example", "dyo.example", "san.example"}); },
       "1 [dyo.example:1893488400|1893488400+3600|el|Ειδήσεις||X3,||]"
       " [EP0001.0002|1893488400+5400|en|The News|The headlines|X1,X2,|TV-G|http://i.example/news.jpg]"
       " [2.3.0/1|1893493800+1800||Open End||||] [uno.example:1893495600|1893495600+3600||Noon||||]"},
      {"categories and playlist groups become genres", Genres, "1 X1=News X2=Weather X3=Ειδήσεις X4=Greek"},
      {"tvg-id in any case links the guide; the name keeps its commas and quotes", [] { return Virtual("uno.example"); },
       "1 1|Uno, \"live\", and more|http://i.example/uno-live.png [The News|http://s.example/uno.m3u8]"
       " [Open End|http://s.example/uno.m3u8] [Noon|http://s.example/uno.m3u8]"},
      {"tvg-name wins over the #EXTINF title", [] { return Virtual("dyo.example"); },
       "1 2|Dyo HD| [Ειδήσεις|http://s.example/dyo.m3u8]"},
      {"an entry without tvg-id is found by its name", [] { return std::to_string(Playlist("No Guide") != 0); }, "1"},
      {"a guide channel shows only what the file lists", [] { return Guide({"san.example"}, std::time(nullptr)); }, "1"},
      {"a playlist entry without a guide shows no programmes", [] { return Virtual("No Guide"); }, "1 3|No Guide|"},
      {"group-title gives the navigation genre", [] { return Navigation("X1"); }, "1 uno.example"},
      {"#EXTGRP gives it where group-title is missing", [] { return Navigation("X4"); }, "1 dyo.example"},
  };
  for (const Row& row : rows) EXPECT_EQ(row.read(), row.expected) << row.name;
  const unsigned long long id = Playlist("uno.example");
  RunningService::Stop();
  RunningService::Start(dir_, 3000, {"--xmltv", kData + "/guide.xml", "--m3u", kData + "/playlist.m3u"});
  EXPECT_EQ(Playlist("uno.example"), id) << "service ids are stable for the same playlist";
}

TEST_F(GuideFiles, GzippedLatin1AndHeaderlessFilesReadAndSighupReloadsThem) {
  std::system(("cp " + kData + "/latin1.xml " + dir_ + "/live.xml && gzip " + dir_ + "/live.xml").c_str());
  std::ofstream(dir_ + "/live.m3u") << "#EXTINF:-1 tvg-id=\"cafe\",Café\nhttp://s.example/cafe\n";
  std::system(("gzip " + dir_ + "/live.m3u").c_str());
  RunningService::Start(dir_, 3000, {"--xmltv", dir_ + "/live.xml.gz", "--m3u", dir_ + "/live.m3u.gz"});
  EXPECT_EQ(Lineup(), "1 [1|1|0|Café Télé||cafe]");
  EXPECT_EQ(Virtual("cafe"), "1 1|Café| [Déjà vu|http://s.example/cafe]");
  // A reload that fails keeps what is running; one that works replaces it.
  std::ofstream(dir_ + "/broken.xml") << "<tv><channel id='a'>";
  std::system(("gzip -c " + dir_ + "/broken.xml > " + dir_ + "/live.xml.gz").c_str());
  RunningService::Signal(SIGHUP);
  std::this_thread::sleep_for(std::chrono::milliseconds(300));
  EXPECT_EQ(Lineup(), "1 [1|1|0|Café Télé||cafe]");
  std::system(("gzip -c " + kData + "/guide.xml > " + dir_ + "/live.xml.gz").c_str());
  RunningService::Signal(SIGHUP);
  const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
  while (Lineup().find("uno.example") == std::string::npos && std::chrono::steady_clock::now() < deadline) {
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
  }
  EXPECT_NE(Lineup().find("uno.example"), std::string::npos);
}

// The service is given no bus, so it stops after reading the file; its
// first line is what it says of the file.
std::pair<int, std::string> Load(const std::string& dir, const std::string& file) {
  auto [status, said] = RunningService::Run("--data-dir " + dir + " --xmltv " + file, "DBUS_SYSTEM_BUS_ADDRESS=unix:path=/none");
  return {status, said.substr(0, said.find('\n') + 1)};
}

TEST_F(GuideFiles, HostileFilesAreRefusedQuicklyNamingFileLineAndColumn) {
  const std::string laughs = [] {
    std::string doc = "<?xml version=\"1.0\"?>\n<!DOCTYPE tv [\n<!ENTITY a0 \"lol\">\n";
    for (int i = 1; i < 10; ++i) {
      doc += "<!ENTITY a" + std::to_string(i) + " \"";
      for (int k = 0; k < 10; ++k) doc += "&a" + std::to_string(i - 1) + ";";
      doc += "\">\n";
    }
    return doc + "]>\n<tv><channel id=\"x\"><display-name>&a9;</display-name></channel></tv>\n";
  }();
  const std::pair<std::string, std::string> rows[] = {
      {"<tv>\n<channel id='a'></chanel>\n</tv>\n", ":2:26: Opening and ending tag mismatch: channel line 2 and chanel"},
      {"<?xml version='1.0' encoding='UTF-8'?>\n<tv><channel id='caf\xe9'/></tv>\n", ":2:21: Input is not proper UTF-8, indicate encoding !"},
      {"<?xml version='1.0'?>\n<guide/>\n", ":2:1: the root element is <guide>, not <tv>"},
      {"<!DOCTYPE tv [<!ENTITY e SYSTEM 'http://127.0.0.1:9/e'>]>\n<tv>&e;</tv>\n", ":3:1: the file declares entities, which guide files do not use"},
      {laughs, ""},
  };
  for (const auto& [text, problem] : rows) {
    const std::string file = dir_ + "/hostile.xml";
    std::ofstream(file) << text;
    const auto start = std::chrono::steady_clock::now();
    const auto [status, said] = Load(dir_, file);
    EXPECT_EQ(status, 1) << problem;
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5)) << problem;
    EXPECT_EQ(said.substr(0, said.find(':', said.find(".xml") + 4)), "zunde-service: " + file) << said;
    if (!problem.empty()) {
      EXPECT_EQ(said, "zunde-service: " + file + problem + "\n");
    }
  }
}

TEST_F(GuideFiles, SkippedProgrammesAreCountedInOneWarning) {
  EXPECT_EQ(Load(dir_, kData + "/guide.xml").second,
            "zunde-service: warning: " + kData +
                "/guide.xml: skipped 2 programmes (1 of no known channel, 1 with a time that does not parse, 0 without an end after their start)\n");
}

}  // namespace
