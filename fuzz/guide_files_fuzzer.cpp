// Guide files from anywhere: the first byte picks the reader. An M3U
// playlist's every entry has its URL; an XMLTV time that parses prints as
// one that parses back to the same second; an XMLTV file is read or
// refused with a GuideFileError, never anything worse.
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string>

#include "guide_files/m3u_playlist.h"
#include "guide_files/xml_stream.h"
#include "guide_files/xmltv_file.h"
#include "guide_files/xmltv_time.h"

namespace {

using namespace zunde::service::guide;

void Playlist(const std::string& text) {
  for (const M3uEntry& entry : ParseM3u(text)) {
    if (entry.url.empty()) std::abort();
  }
}

void Time(const std::string& text) {
  uint32_t utc = 0;
  uint32_t again = 0;
  if (ParseXmltvTime(text, utc) && (!ParseXmltvTime(XmltvTime(utc), again) || again != utc)) std::abort();
}

void Xmltv(const std::string& text) {
  const char* folder = std::getenv("TMPDIR");
  const std::string path = std::string(folder ? folder : "/tmp") + "/guide_files_fuzzer-" + std::to_string(getpid());
  FILE* file = std::fopen(path.c_str(), "wb");
  std::fwrite(text.data(), 1, text.size(), file);
  std::fclose(file);
  try {
    ReadXmltv(path, {[](const XmltvChannel&) {}, [](const XmltvProgramme&) {}});
  } catch (const GuideFileError&) {
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size == 0) return 0;
  const std::string text(reinterpret_cast<const char*>(data) + 1, size - 1);
  switch (data[0] % 3) {
    case 0: Playlist(text); break;
    case 1: Time(text); break;
    default: Xmltv(text);
  }
  return 0;
}
