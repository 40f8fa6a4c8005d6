// How XMLTV channels and programmes become the library's records (the
// table in README.md, "Guide files").
#ifndef ZUNDE_SERVICE_GUIDE_FILES_XMLTV_MAPPING_H
#define ZUNDE_SERVICE_GUIDE_FILES_XMLTV_MAPPING_H

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "FCElementData.h"
#include "xmltv_file.h"

namespace zunde::service::guide {

// Genre ids for category names, given in order of first appearance
// ("X1", "X2", ...), so that the same file gives the same ids.
class GenreIds {
 public:
  std::string IdOf(const std::string& name);
  // The genres in id order, as GetGenreList answers them.
  const std::vector<FCGenreInfo>& Genres() const { return genres_; }

 private:
  std::map<std::string, std::string> ids_;
  std::vector<FCGenreInfo> genres_;
};

// The channel at `position` (from 1) of the file, on `activity`.
FCRemoteChannel ToRemoteChannel(const XmltvChannel& channel, int position, int activity);

// The text in `language` ("en" also takes "en-GB"), else the first; "" for none.
const LangText* PickText(const std::vector<LangText>& texts, const std::string& language);

// A programme of `channel` from `start` to `stop` (already parsed).
FCRemoteProgram ToRemoteProgram(const XmltvProgramme& programme, const FCRemoteChannel& channel, uint32_t start,
                                uint32_t stop, const std::string& language, GenreIds& genres);

}  // namespace zunde::service::guide

#endif
