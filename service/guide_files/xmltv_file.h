// The parts of an XMLTV file the service uses, read one element at a time.
// Texts keep their "lang" attribute so that the guide can show the one in
// the user's language.
#ifndef ZUNDE_SERVICE_GUIDE_FILES_XMLTV_FILE_H
#define ZUNDE_SERVICE_GUIDE_FILES_XMLTV_FILE_H

#include <functional>
#include <string>
#include <vector>

namespace zunde::service::guide {

struct LangText {
  std::string lang;  // "" when the element has none
  std::string text;
};

struct XmltvChannel {
  std::string id;
  std::vector<std::string> displayNames;
  std::string lcn;   // the logical channel number, "" when absent
  std::string icon;  // the first icon's src
};

struct EpisodeNum {
  std::string system;
  std::string text;
};

struct XmltvProgramme {
  std::string channel;
  std::string start;  // as written: "YYYYMMDDhhmmss +hhmm"
  std::string stop;   // "" when absent
  std::vector<LangText> titles;
  std::vector<LangText> descs;
  std::vector<LangText> categories;
  std::string rating;  // the first rating's value
  std::string icon;
  std::vector<EpisodeNum> episodeNums;
  int line = 0;  // where it starts in the file, for warnings
};

struct XmltvHandlers {
  std::function<void(const XmltvChannel&)> channel;
  std::function<void(const XmltvProgramme&)> programme;
};

// Streams `path` (plain or .gz) to the handlers in file order. Throws
// GuideFileError naming the file, line and column when the file is not
// well-formed, its bytes do not match its declared encoding, or its root
// is not <tv>.
void ReadXmltv(const std::string& path, const XmltvHandlers& handlers);

}  // namespace zunde::service::guide

#endif
