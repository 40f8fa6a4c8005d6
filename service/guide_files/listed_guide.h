// Programmes read from a guide file, kept in an SQLite file of their own
// beside the store and indexed by program source id and start time, so
// that a window of the guide reads only its own rows and a guide of any
// size costs memory only for SQLite's page cache. The file is derived
// data: it is built afresh from the guide file at each start and reload.
#ifndef ZUNDE_SERVICE_GUIDE_FILES_LISTED_GUIDE_H
#define ZUNDE_SERVICE_GUIDE_FILES_LISTED_GUIDE_H

#include <sqlite3.h>

#include <cstdint>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "FCElementData.h"

namespace zunde::service::guide {

class ListedGuide {
 public:
  ~ListedGuide();
  ListedGuide(const ListedGuide&) = delete;
  ListedGuide& operator=(const ListedGuide&) = delete;

  // Whether `sourceId` is a channel of the guide file, with programmes or
  // without.
  bool Has(const std::string& sourceId) const { return sources_.count(sourceId) != 0; }
  // The programmes of `sourceId` that overlap [from, to), by start time.
  std::vector<FCRemoteProgram> Between(const std::string& sourceId, int64_t from, int64_t to) const;
  size_t Size() const { return size_; }

 private:
  friend class ListedGuideBuilder;
  ListedGuide(sqlite3* db, int64_t longest, std::set<std::string> sources);

  sqlite3* db_;
  sqlite3_stmt* between_ = nullptr;
  int64_t longest_;  // the longest programme, which bounds how far back a window looks
  std::set<std::string> sources_;
  size_t size_ = 0;
};

// Writes a new guide next to `path` and puts it in place only once it is
// complete, so that a failed reload leaves the running guide as it was.
class ListedGuideBuilder {
 public:
  // Throws std::runtime_error when the file cannot be made.
  explicit ListedGuideBuilder(const std::string& path);
  ~ListedGuideBuilder();
  ListedGuideBuilder(const ListedGuideBuilder&) = delete;
  ListedGuideBuilder& operator=(const ListedGuideBuilder&) = delete;

  // A channel of the file, which shows only the programmes it lists.
  void AddChannel(const std::string& sourceId) { sources_.insert(sourceId); }
  // `program` with its start and, when `openEnded`, no end yet: it lasts
  // until the next programme of its channel. A later programme of the same
  // channel and start replaces it.
  void Add(const FCRemoteProgram& program, bool openEnded);
  // Ends the open-ended programmes, drops those with no programme after
  // them (counted in `dropped`) and puts the guide in place.
  std::unique_ptr<ListedGuide> Finish(int& dropped);

 private:
  void Exec(const char* sql);

  std::string path_;
  std::string building_;
  sqlite3* db_ = nullptr;
  sqlite3_stmt* insert_ = nullptr;
  std::set<std::string> sources_;
};

}  // namespace zunde::service::guide

#endif
