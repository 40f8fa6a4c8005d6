#include "store.h"

#include <cstdio>
#include <iterator>
#include <memory>

namespace zunde::service {
namespace {

// Forward migrations: entry i brings a store from version i to i + 1.
const char* const kMigrations[] = {
    // 1: every piece of state is one JSON document under a key.
    "CREATE TABLE document (key TEXT PRIMARY KEY NOT NULL, value TEXT NOT NULL)",
    // 2: logs are rows, so that keeping only the newest is one delete; the
    // usage (KPI) log moves out of its document.
    "CREATE TABLE log (id INTEGER PRIMARY KEY, name TEXT NOT NULL, value TEXT NOT NULL);"
    "CREATE INDEX log_by_name ON log (name, id);"
    "INSERT INTO log (name, value) SELECT 'vc/kpi', value"
    "  FROM json_each((SELECT value FROM document WHERE key = 'vc/kpi')) ORDER BY key;"
    "DELETE FROM document WHERE key = 'vc/kpi'",
    // 3: a set-top box's channel map moves out of its settings, so that a
    // setting's change does not rewrite the map; the operator's guide and
    // smart-personal activations, which nothing read, go.
    "INSERT INTO document (key, value) SELECT 'channels/' || substr(key, 10),"
    "  json_object('MBR channel table', json_extract(value, '$.\"MBR channel table\"'))"
    "  FROM document WHERE key GLOB 'activity/[0-9]*'"
    "  AND json_extract(value, '$.\"MBR channel table\"') IS NOT NULL;"
    "UPDATE document SET value = json_remove(value, '$.\"MBR channel table\"') WHERE key GLOB 'activity/[0-9]*';"
    "DELETE FROM document WHERE key GLOB 'operator/guide/*' OR key GLOB 'operator/smart personal/*'",
};

using Statement = std::unique_ptr<sqlite3_stmt, decltype(&sqlite3_finalize)>;

Statement Prepare(sqlite3* db, const char* sql) {
  sqlite3_stmt* stmt = nullptr;
  if (sqlite3_prepare_v2(db, sql, -1, &stmt, nullptr) != SQLITE_OK) throw StoreError(sqlite3_errmsg(db));
  return Statement(stmt, sqlite3_finalize);
}

void Bind(sqlite3_stmt* stmt, int index, const std::string& text) {
  sqlite3_bind_text(stmt, index, text.data(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
}

void Bind(sqlite3_stmt* stmt, int index, int number) { sqlite3_bind_int(stmt, index, number); }

void StepToDone(sqlite3* db, sqlite3_stmt* stmt) {
  if (sqlite3_step(stmt) != SQLITE_DONE) throw StoreError(sqlite3_errmsg(db));
}

// True when a row came, false when none did; throws when the read failed.
bool StepToRow(sqlite3* db, sqlite3_stmt* stmt) {
  const int result = sqlite3_step(stmt);
  if (result != SQLITE_ROW && result != SQLITE_DONE) throw StoreError(sqlite3_errmsg(db));
  return result == SQLITE_ROW;
}

// `path` as a URI file name with `query`; the characters a URI reserves are
// escaped.
std::string UriOf(const std::string& path, const char* query) {
  std::string uri = "file:";
  for (const char c : path) {
    if (c == '%' || c == '?' || c == '#') {
      char escaped[4];
      std::snprintf(escaped, sizeof escaped, "%%%02X", static_cast<unsigned char>(c));
      uri += escaped;
    } else {
      uri += c;
    }
  }
  return uri + "?" + query;
}

std::string Compact(const Json::Value& value) {
  Json::StreamWriterBuilder writer;
  writer["indentation"] = "";
  return Json::writeString(writer, value);
}

}  // namespace

Store::Store(const std::string& path, const StoreOptions& options) {
  if (options.readOnly) {
    OpenReadOnly(path);
    readOnlyReason_ = "opened read-only";
    return;
  }
  try {
    OpenWritable(path, options);
  } catch (const StoreError& failed) {
    // Reads can still be served from a store that cannot be written; if it
    // cannot even be read, the first failure is the one worth reporting.
    try {
      OpenReadOnly(path);
    } catch (const StoreError&) {
      throw failed;
    }
    readOnlyReason_ = failed.what();
  }
}

Store::~Store() { Close(); }

void Store::Open(const std::string& name, int flags) {
  Close();
  if (sqlite3_open_v2(name.c_str(), &db_, flags, nullptr) != SQLITE_OK) {
    const std::string message = db_ ? sqlite3_errmsg(db_) : "out of memory";
    Close();
    throw StoreError(name + ": " + message);
  }
  sqlite3_busy_timeout(db_, 5000);
}

void Store::Close() {
  sqlite3_close(db_);
  db_ = nullptr;
}

void Store::OpenWritable(const std::string& path, const StoreOptions& options) {
  Open(path, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
  // SQLite falls back to reading a file the system will not let it write.
  if (sqlite3_db_readonly(db_, "main") == 1) throw StoreError(path + ": the file cannot be written");
  Exec("PRAGMA journal_mode=WAL");
  Exec("PRAGMA synchronous=FULL");
  Migrate();
  if (options.maxPages > 0) Exec("PRAGMA max_page_count=" + std::to_string(options.maxPages));
}

// A plain read-only open still sees the changes in the write-ahead log, but
// needs to make the log's index beside the file; where the folder refuses
// that, the file is read as it stands (immutable), without the log.
void Store::OpenReadOnly(const std::string& path) {
  for (const char* mode : {"mode=ro", "immutable=1"}) {
    try {
      Open(UriOf(path, mode), SQLITE_OPEN_READONLY | SQLITE_OPEN_URI);
      if (Version() != SchemaVersion()) {
        throw StoreError(path + ": schema " + std::to_string(Version()) + " cannot be brought to " +
                         std::to_string(SchemaVersion()) + " without writing");
      }
      return;
    } catch (const StoreError&) {
      Close();
      if (std::string(mode) != "mode=ro") throw;
    }
  }
}

int Store::SchemaVersion() { return static_cast<int>(std::size(kMigrations)); }

void Store::Exec(const std::string& sql) const {
  char* error = nullptr;
  if (sqlite3_exec(db_, sql.c_str(), nullptr, nullptr, &error) != SQLITE_OK) {
    const std::string message = error ? error : "unknown error";
    sqlite3_free(error);
    throw StoreError(message);
  }
}

int Store::Version() const {
  Statement query = Prepare(db_, "PRAGMA user_version");
  if (!StepToRow(db_, query.get())) throw StoreError("the store has no schema version");
  return sqlite3_column_int(query.get(), 0);
}

void Store::Migrate() {
  const int version = Version();
  if (version > SchemaVersion()) {
    throw StoreError("the store was written by a newer zunde-service (schema " + std::to_string(version) + ")");
  }
  for (int next = version; next < SchemaVersion(); ++next) {
    Transaction step(*this);
    Exec(kMigrations[next]);
    Exec("PRAGMA user_version=" + std::to_string(next + 1));
    step.Commit();
  }
}

Json::Value Store::Get(const std::string& key) const {
  Statement query = Prepare(db_, "SELECT value FROM document WHERE key = ?");
  Bind(query.get(), 1, key);
  Json::Value value;
  if (StepToRow(db_, query.get())) {
    const char* text = reinterpret_cast<const char*>(sqlite3_column_text(query.get(), 0));
    Json::Reader().parse(text ? text : "null", value);
  }
  return value;
}

void Store::Put(const std::string& key, const Json::Value& value) {
  Statement put = Prepare(db_, "INSERT OR REPLACE INTO document (key, value) VALUES (?, ?)");
  Bind(put.get(), 1, key);
  Bind(put.get(), 2, Compact(value));
  StepToDone(db_, put.get());
}

void Store::Erase(const std::string& key) {
  Statement erase = Prepare(db_, "DELETE FROM document WHERE key = ?");
  Bind(erase.get(), 1, key);
  StepToDone(db_, erase.get());
}

void Store::EraseAll(const std::string& prefix) {
  for (const char* sql : {"DELETE FROM document WHERE substr(key, 1, length(?1)) = ?1",
                          "DELETE FROM log WHERE substr(name, 1, length(?1)) = ?1"}) {
    Statement erase = Prepare(db_, sql);
    Bind(erase.get(), 1, prefix);
    StepToDone(db_, erase.get());
  }
}

void Store::Trim(const std::string& prefix, int limit) {
  // A rewritten document gets a rowid above every other (INSERT OR REPLACE
  // inserts anew), so rowid order is the order of the last writes.
  Statement trim = Prepare(db_,
                           "DELETE FROM document WHERE substr(key, 1, length(?1)) = ?1 AND rowid <= "
                           "(SELECT rowid FROM document WHERE substr(key, 1, length(?1)) = ?1 "
                           "ORDER BY rowid DESC LIMIT 1 OFFSET ?2)");
  Bind(trim.get(), 1, prefix);
  Bind(trim.get(), 2, limit);
  StepToDone(db_, trim.get());
}

void Store::Append(const std::string& name, const Json::Value& value, int limit) {
  Statement append = Prepare(db_, "INSERT INTO log (name, value) VALUES (?, ?)");
  Bind(append.get(), 1, name);
  Bind(append.get(), 2, Compact(value));
  StepToDone(db_, append.get());
  Statement trim = Prepare(db_,
                           "DELETE FROM log WHERE name = ?1 AND id <= "
                           "(SELECT id FROM log WHERE name = ?1 ORDER BY id DESC LIMIT 1 OFFSET ?2)");
  Bind(trim.get(), 1, name);
  Bind(trim.get(), 2, limit);
  StepToDone(db_, trim.get());
}

void Store::Begin() { Exec("BEGIN IMMEDIATE"); }
void Store::Commit() { Exec("COMMIT"); }
// Runs from destructors: a failed rollback leaves nothing more to undo.
void Store::Rollback() { sqlite3_exec(db_, "ROLLBACK", nullptr, nullptr, nullptr); }

}  // namespace zunde::service
