#include "listed_guide.h"

#include <algorithm>
#include <cstdio>
#include <stdexcept>

namespace zunde::service::guide {
namespace {

// One column per field a guide file fills; the rest of a record is empty.
const char kSchema[] =
    "CREATE TABLE programme(source TEXT NOT NULL, start INTEGER NOT NULL, stop INTEGER, activity INTEGER,"
    " channel_name TEXT, channel_number TEXT, program_id TEXT, lang TEXT, start_text TEXT, title TEXT, cert TEXT,"
    " genres TEXT, poster TEXT, short_desc TEXT, PRIMARY KEY(source, start)) WITHOUT ROWID;";

const int kTextColumns = 10;  // channel_name to short_desc, in the record's field order

// The record's text field for `column`; null for the genres, which are
// joined by commas.
template <typename Program>
auto TextField(Program& p, int column) -> decltype(&p.strTitle) {
  decltype(&p.strTitle) const fields[kTextColumns] = {&p.str_channel_name, &p.str_channel_number, &p.str_program_id, &p.str_lang,
                                             &p.str_starttime,    &p.strTitle,           &p.str_cert_flag,  nullptr,
                                             &p.str_poster_url,   &p.str_short_desc};
  return fields[column];
}

void Check(sqlite3* db, int code, const std::string& what) {
  if (code != SQLITE_OK && code != SQLITE_DONE && code != SQLITE_ROW) {
    throw std::runtime_error(what + ": " + (db ? sqlite3_errmsg(db) : sqlite3_errstr(code)));
  }
}

sqlite3_stmt* Prepare(sqlite3* db, const char* sql) {
  sqlite3_stmt* statement = nullptr;
  Check(db, sqlite3_prepare_v3(db, sql, -1, SQLITE_PREPARE_PERSISTENT, &statement, nullptr), "guide");
  return statement;
}

std::string Text(sqlite3_stmt* statement, int column) {
  const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
  return text ? std::string(text, static_cast<size_t>(sqlite3_column_bytes(statement, column))) : "";
}

int64_t Scalar(sqlite3* db, const char* sql) {
  sqlite3_stmt* statement = Prepare(db, sql);
  const int64_t value = sqlite3_step(statement) == SQLITE_ROW ? sqlite3_column_int64(statement, 0) : 0;
  sqlite3_finalize(statement);
  return value;
}

std::string Joined(const std::vector<std::string>& genres) {
  std::string text;
  for (const std::string& genre : genres) text += (text.empty() ? "" : ",") + genre;
  return text;
}

std::vector<std::string> Split(const std::string& text) {
  std::vector<std::string> parts;
  for (size_t at = 0; !text.empty() && at <= text.size();) {
    const size_t comma = std::min(text.find(',', at), text.size());
    parts.push_back(text.substr(at, comma - at));
    at = comma + 1;
  }
  return parts;
}

const int kFirstText = 4;  // columns: source, start, stop, activity, then the texts

FCRemoteProgram RecordOf(sqlite3_stmt* row) {
  FCRemoteProgram program;
  program.str_program_source_id = Text(row, 0);
  program.utc_starttime = static_cast<uint32_t>(sqlite3_column_int64(row, 1));
  program.EndTime = static_cast<uint32_t>(sqlite3_column_int64(row, 2));
  program.duration = static_cast<int>(program.EndTime - program.utc_starttime);
  program.activityID = sqlite3_column_int(row, 3);
  for (int column = 0; column < kTextColumns; ++column) {
    if (std::string* field = TextField(program, column)) {
      *field = Text(row, kFirstText + column);
    } else {
      program.genre_array = Split(Text(row, kFirstText + column));
    }
  }
  program.desc = program.str_short_desc;
  return program;
}

}  // namespace

ListedGuide::ListedGuide(sqlite3* db, int64_t longest, std::set<std::string> sources)
    : db_(db), longest_(longest), sources_(std::move(sources)) {
  between_ = Prepare(db_,
                     "SELECT * FROM programme WHERE source = ?1 AND start > ?2 - ?4 AND start < ?3"
                     " AND stop > ?2 ORDER BY start");
  size_ = static_cast<size_t>(Scalar(db_, "SELECT count(*) FROM programme"));
}

ListedGuide::~ListedGuide() {
  sqlite3_finalize(between_);
  sqlite3_close(db_);
}

std::vector<FCRemoteProgram> ListedGuide::Between(const std::string& sourceId, int64_t from, int64_t to) const {
  std::vector<FCRemoteProgram> programs;
  sqlite3_reset(between_);
  sqlite3_bind_text(between_, 1, sourceId.data(), static_cast<int>(sourceId.size()), SQLITE_STATIC);
  sqlite3_bind_int64(between_, 2, from);
  sqlite3_bind_int64(between_, 3, to);
  sqlite3_bind_int64(between_, 4, longest_);
  while (sqlite3_step(between_) == SQLITE_ROW) programs.push_back(RecordOf(between_));
  sqlite3_reset(between_);
  return programs;
}

ListedGuideBuilder::ListedGuideBuilder(const std::string& path) : path_(path), building_(path + ".new") {
  std::remove(building_.c_str());
  Check(nullptr, sqlite3_open(building_.c_str(), &db_), "cannot make " + building_);
  // Nothing here needs to outlive a crash: the next start builds it again.
  Exec("PRAGMA journal_mode=OFF; PRAGMA synchronous=OFF;");
  Exec(kSchema);
  Exec("BEGIN");
  insert_ = Prepare(db_, "INSERT OR REPLACE INTO programme VALUES(?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)");
}

ListedGuideBuilder::~ListedGuideBuilder() {
  sqlite3_finalize(insert_);
  if (db_ == nullptr) return;
  sqlite3_close(db_);
  std::remove(building_.c_str());
}

void ListedGuideBuilder::Exec(const char* sql) { Check(db_, sqlite3_exec(db_, sql, nullptr, nullptr, nullptr), building_); }

void ListedGuideBuilder::Add(const FCRemoteProgram& program, bool openEnded) {
  const std::string genres = Joined(program.genre_array);
  sqlite3_bind_text(insert_, 1, program.str_program_source_id.data(), static_cast<int>(program.str_program_source_id.size()),
                    SQLITE_STATIC);
  sqlite3_bind_int64(insert_, 2, program.utc_starttime);
  if (openEnded) {
    sqlite3_bind_null(insert_, 3);
  } else {
    sqlite3_bind_int64(insert_, 3, program.EndTime);
  }
  sqlite3_bind_int(insert_, 4, program.activityID);
  for (int column = 0; column < kTextColumns; ++column) {
    const std::string* field = TextField(program, column);
    if (field == nullptr) field = &genres;
    sqlite3_bind_text(insert_, kFirstText + 1 + column, field->data(), static_cast<int>(field->size()), SQLITE_STATIC);
  }
  Check(db_, sqlite3_step(insert_), building_);
  sqlite3_reset(insert_);
}

std::unique_ptr<ListedGuide> ListedGuideBuilder::Finish(int& dropped) {
  Exec("UPDATE programme SET stop = (SELECT min(next.start) FROM programme next"
       " WHERE next.source = programme.source AND next.start > programme.start) WHERE stop IS NULL");
  Exec("DELETE FROM programme WHERE stop IS NULL OR stop <= start");
  dropped = sqlite3_changes(db_);
  const int64_t longest = Scalar(db_, "SELECT coalesce(max(stop - start), 0) FROM programme");
  Exec("COMMIT");
  sqlite3_finalize(insert_);
  insert_ = nullptr;
  sqlite3_close(db_);
  db_ = nullptr;
  if (std::rename(building_.c_str(), path_.c_str()) != 0) throw std::runtime_error("cannot put " + path_ + " in place");
  sqlite3* db = nullptr;
  Check(nullptr, sqlite3_open_v2(path_.c_str(), &db, SQLITE_OPEN_READONLY, nullptr), "cannot open " + path_);
  return std::unique_ptr<ListedGuide>(new ListedGuide(db, longest, std::move(sources_)));
}

}  // namespace zunde::service::guide
